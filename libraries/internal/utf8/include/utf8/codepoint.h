#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace utf8 {

/// Stands for what can't be read.
constexpr char32_t replacement = 0xFFFD;

/// One code point of a text and the bytes that it takes there.
struct CodePoint {
    char32_t value;
    std::size_t bytes;
};

namespace detail {

/// Length of the sequence that a first byte announces, the bits that the byte itself holds of the code point,
/// and the least code point that needs this length.
struct Announced {
    std::size_t bytes;
    char32_t bits;
    char32_t least;
};

inline Announced announced(unsigned char first) {
    if (first < 0x80)
        return {1, first, 0};
    if (first >= 0xC2 && first < 0xE0)
        return {2, first & 0x1FU, 0x80};
    if (first >= 0xE0 && first < 0xF0)
        return {3, first & 0x0FU, 0x800};
    if (first >= 0xF0 && first < 0xF5)
        return {4, first & 0x07U, 0x10000};
    return {0, 0, 0};
}

} // namespace detail

/// The code point that the text begins with; nothing if it is empty or begins with bytes that are not
/// well-formed: overlong forms, surrogates and values past U+10FFFF are not.
inline std::optional<CodePoint> front(std::string_view text) {
    if (text.empty())
        return std::nullopt;
    const detail::Announced head = detail::announced(static_cast<unsigned char>(text.front()));
    if (head.bytes == 0 || head.bytes > text.size())
        return std::nullopt;
    char32_t value = head.bits;
    for (const char next : text.substr(1, head.bytes - 1)) {
        const auto byte = static_cast<unsigned char>(next);
        if ((byte & 0xC0U) != 0x80U)
            return std::nullopt;
        value = (value << 6U) | (byte & 0x3FU);
    }
    const bool surrogate = value >= 0xD800 && value <= 0xDFFF;
    if (value < head.least || value > 0x10FFFF || surrogate)
        return std::nullopt;
    return CodePoint{value, head.bytes};
}

inline bool isWellFormed(std::string_view text) {
    while (!text.empty()) {
        const std::optional<CodePoint> first = front(text);
        if (!first)
            return false;
        text.remove_prefix(first->bytes);
    }
    return true;
}

/// The code point is one of Unicode.
inline void append(std::string& text, char32_t value) {
    const auto tail = [value](unsigned shift) {
        return static_cast<char>(0x80U | ((value >> shift) & 0x3FU));
    };
    if (value < 0x80) {
        text += static_cast<char>(value);
    } else if (value < 0x800) {
        text += static_cast<char>(0xC0U | (value >> 6U));
        text += tail(0);
    } else if (value < 0x10000) {
        text += static_cast<char>(0xE0U | (value >> 12U));
        text += {tail(6), tail(0)};
    } else {
        text += static_cast<char>(0xF0U | (value >> 18U));
        text += {tail(12), tail(6), tail(0)};
    }
}

} // namespace utf8

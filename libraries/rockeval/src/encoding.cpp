#include "encoding.h"

#include "linecursor.h"
#include "rockeval/readerror.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace rockeval {

namespace {

constexpr std::string_view exportAgain = "; export it from the analyser again as plain text";

// Windows-1252 from 0x80 to 0x9F; above that it agrees with Unicode.
constexpr std::array<std::uint16_t, 32> windows1252 = {
    0x20AC, 0xFFFD, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0xFFFD, 0x017D, 0xFFFD, 0xFFFD, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0xFFFD, 0x017E, 0x0178};

std::size_t lineOf(std::string_view bytes, std::size_t position) {
    LineCursor cursor(bytes.substr(0, position + 1));
    while (cursor.next()) {
    }
    return cursor.number();
}

bool isContinuation(unsigned char byte) {
    return (byte & 0xC0) == 0x80;
}

// Length of the well-formed sequence the text begins with, 0 if there is none: no overlong forms, no
// surrogates, nothing above U+10FFFF.
std::size_t sequenceLength(std::string_view text) {
    const auto byte = [text](std::size_t i) {
        return i < text.size() ? static_cast<unsigned char>(text[i]) : static_cast<unsigned char>(0);
    };
    const unsigned char first = byte(0);
    const unsigned char second = byte(1);
    if (first < 0x80)
        return 1;
    if (first < 0xC2 || first > 0xF4 || !isContinuation(second))
        return 0;
    if (first < 0xE0)
        return 2;
    if (!isContinuation(byte(2)))
        return 0;
    if (first < 0xF0) {
        const bool overlong = first == 0xE0 && second < 0xA0;
        const bool surrogate = first == 0xED && second >= 0xA0;
        return overlong || surrogate ? 0 : 3;
    }
    const bool outside = (first == 0xF0 && second < 0x90) || (first == 0xF4 && second >= 0x90);
    return outside || !isContinuation(byte(3)) ? 0 : 4;
}

bool isUtf8(std::string_view text) {
    while (!text.empty()) {
        const std::size_t length = sequenceLength(text);
        if (length == 0)
            return false;
        text.remove_prefix(length);
    }
    return true;
}

void appendCodePoint(std::string& text, unsigned code) {
    if (code < 0x80) {
        text += static_cast<char>(code);
    } else if (code < 0x800) {
        text += static_cast<char>(0xC0 | (code >> 6));
        text += static_cast<char>(0x80 | (code & 0x3F));
    } else {
        text += static_cast<char>(0xE0 | (code >> 12));
        text += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
        text += static_cast<char>(0x80 | (code & 0x3F));
    }
}

} // namespace

std::string_view requireText(std::string_view bytes, const std::string& fileName) {
    const std::string_view mark = bytes.substr(0, 2);
    if (mark == "\xFF\xFE" || mark == "\xFE\xFF") {
        throw ReadError(fileName, 1,
                        "the file is binary or UTF-16, not 8-bit text" + std::string(exportAgain));
    }
    if (const std::size_t zero = bytes.find('\0'); zero != std::string_view::npos) {
        throw ReadError(fileName, lineOf(bytes, zero),
                        "the file is binary, it holds a zero byte" + std::string(exportAgain));
    }
    if (startsWithMark(bytes))
        bytes.remove_prefix(byteOrderMark.size());
    if (bytes.empty())
        throw ReadError(fileName, 1, "the file is empty" + std::string(exportAgain));
    return bytes;
}

std::string toUtf8(std::string_view text) {
    if (isUtf8(text))
        return std::string(text);
    std::string result;
    result.reserve(text.size() + text.size() / 8);
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        const bool inTable = byte >= 0x80 && byte < 0xA0;
        appendCodePoint(result, inTable ? windows1252[byte - 0x80U] : byte);
    }
    return result;
}

} // namespace rockeval

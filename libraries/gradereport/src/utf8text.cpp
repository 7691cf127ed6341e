#include "gradereport/utf8text.h"

#include "utf8/codepoint.h"

#include <algorithm>
#include <array>
#include <vector>

namespace gradereport {

namespace {

using utf8::CodePoint;

constexpr std::string_view ellipsis = "\u2026";

struct Range {
    char32_t first;
    char32_t last;
};

constexpr std::array<Range, 6> combiningRanges{{{0x300, 0x36F},
                                                {0x200B, 0x200F},
                                                {0x20D0, 0x20FF},
                                                {0x1AB0, 0x1AFF},
                                                {0xFE00, 0xFE0F},
                                                {0xFE20, 0xFE2F}}};
constexpr std::array<Range, 10> wideRanges{{{0x1100, 0x115F},
                                            {0x2E80, 0xA4CF},
                                            {0xAC00, 0xD7A3},
                                            {0xF900, 0xFAFF},
                                            {0xFE30, 0xFE6F},
                                            {0xFF00, 0xFF60},
                                            {0xFFE0, 0xFFE6},
                                            {0x1F300, 0x1F64F},
                                            {0x1F680, 0x1F9FF},
                                            {0x20000, 0x3FFFD}}};

template <std::size_t count>
bool isIn(const std::array<Range, count>& ranges, char32_t code) {
    return std::any_of(ranges.begin(), ranges.end(),
                       [code](const Range& range) { return code >= range.first && code <= range.last; });
}

/// An invalid byte counts as a code point of its own.
CodePoint letterAt(std::string_view text, std::size_t position) {
    return utf8::front(text.substr(position)).value_or(CodePoint{utf8::replacement, 1});
}

/// The text with every code point replaced by what `map` makes of it.
template <typename Map>
std::string mapped(std::string_view text, Map map) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t position = 0; position < text.size();) {
        const CodePoint letter = letterAt(text, position);
        utf8::append(out, map(letter.value));
        position += letter.bytes;
    }
    return out;
}

char32_t visibleCode(char32_t code) {
    constexpr char32_t pictures = 0x2400;
    if (code < 0x20)
        return pictures + code;
    if (code == 0x7F)
        return 0x2421;
    const bool control = code >= 0x80 && code <= 0x9F;
    const bool reorders = (code >= 0x2028 && code <= 0x202E) || (code >= 0x2066 && code <= 0x2069);
    return control || reorders ? utf8::replacement : code;
}

std::size_t widthOf(char32_t code) {
    if (isIn(combiningRanges, code))
        return 0;
    return isIn(wideRanges, code) ? 2 : 1;
}

/// Bytes of the longest beginning of the text that is at most `width` columns wide.
std::size_t headBytes(std::string_view text, std::size_t width) {
    std::size_t position = 0;
    for (std::size_t used = 0; position < text.size();) {
        const CodePoint letter = letterAt(text, position);
        used += widthOf(letter.value);
        if (used > width)
            break;
        position += letter.bytes;
    }
    return position;
}

/// Where the longest end of the text begins that is at most `width` columns wide.
std::size_t tailStart(std::string_view text, std::size_t width) {
    std::vector<CodePoint> letters;
    for (std::size_t position = 0; position < text.size(); position += letters.back().bytes)
        letters.push_back(letterAt(text, position));
    std::size_t start = text.size();
    std::size_t used = 0;
    for (auto letter = letters.rbegin(); letter != letters.rend(); ++letter) {
        used += widthOf(letter->value);
        if (used > width)
            break;
        start -= letter->bytes;
    }
    return start;
}

} // namespace

std::string validUtf8(std::string_view text) {
    return mapped(text, [](char32_t code) { return code; });
}

std::string visibleText(std::string_view text) {
    return mapped(text, visibleCode);
}

std::size_t displayWidth(std::string_view text) {
    std::size_t width = 0;
    for (std::size_t position = 0; position < text.size();) {
        const CodePoint letter = letterAt(text, position);
        width += widthOf(letter.value);
        position += letter.bytes;
    }
    return width;
}

std::string shortenedInMiddle(std::string_view text, std::size_t width) {
    if (displayWidth(text) <= width)
        return std::string(text);
    if (width == 0)
        return {};
    const std::size_t kept = width - 1;
    const std::size_t tail = kept / 2;
    std::string out(text.substr(0, headBytes(text, kept - tail)));
    return out.append(ellipsis).append(text.substr(tailStart(text, tail)));
}

std::string shortenedAtEnd(std::string_view text, std::size_t width) {
    if (displayWidth(text) <= width)
        return std::string(text);
    if (width == 0)
        return {};
    return std::string(text.substr(0, headBytes(text, width - 1))).append(ellipsis);
}

} // namespace gradereport

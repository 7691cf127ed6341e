#include "encoding.h"

#include "linecursor.h"
#include "rockeval/readerror.h"
#include "utf8/codepoint.h"

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
    if (utf8::isWellFormed(text))
        return std::string(text);
    std::string result;
    result.reserve(text.size() + text.size() / 8);
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        const bool inTable = byte >= 0x80 && byte < 0xA0;
        utf8::append(result, inTable ? windows1252[byte - 0x80U] : byte);
    }
    return result;
}

} // namespace rockeval

#pragma once

#include <string>
#include <string_view>

namespace rockeval {

/// UTF-8's byte-order mark.
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

inline bool startsWithMark(std::string_view text) {
    return text.substr(0, byteOrderMark.size()) == byteOrderMark;
}

/// The bytes behind a byte-order mark. Throws ReadError if they are no 8-bit text: empty, marked as
/// UTF-16, or holding a zero byte.
std::string_view requireText(std::string_view bytes, const std::string& fileName);

/// The text itself if it is valid UTF-8, else the text decoded as Windows-1252, whose five unassigned
/// bytes become the replacement character.
std::string toUtf8(std::string_view text);

} // namespace rockeval

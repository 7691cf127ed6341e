#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace gradereport {

/// The text with each byte that belongs to no well-formed UTF-8 sequence replaced by U+FFFD. Overlong forms,
/// surrogates and values past U+10FFFF are not well-formed. File names are bytes of any kind, the formats
/// written here are UTF-8.
[[nodiscard]] std::string validUtf8(std::string_view text);

/// The text as it may be shown to a person: valid UTF-8 without effects. A control character becomes its
/// picture (a line feed U+240A), so that a file name can neither send a terminal an escape sequence nor break
/// a line; what reorders or splits a line (U+2028 to U+202E, U+2066 to U+2069) becomes U+FFFD.
[[nodiscard]] std::string visibleText(std::string_view text);

/// Columns that a terminal with fixed-width letters takes for the text: 2 for wide East Asian letters and
/// pictographs, 0 for combining marks, 1 for the rest.
[[nodiscard]] std::size_t displayWidth(std::string_view text);

/// The text if it is at most `width` columns wide; otherwise its beginning and its end around an ellipsis,
/// together at most `width` columns wide. Ends of file names tell samples apart, so both ends are kept.
[[nodiscard]] std::string shortenedInMiddle(std::string_view text, std::size_t width);

/// The text if it is at most `width` columns wide; otherwise its beginning and an ellipsis.
[[nodiscard]] std::string shortenedAtEnd(std::string_view text, std::size_t width);

} // namespace gradereport

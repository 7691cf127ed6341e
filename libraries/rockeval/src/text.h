#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace rockeval {

/// Small helpers on one line of text; a blank is a space or a tab, letters are those of ASCII.

inline bool isBlank(char c) {
    return c == ' ' || c == '\t';
}

inline std::string_view trimRight(std::string_view text) {
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

inline std::string_view trim(std::string_view text) {
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    return trimRight(text);
}

bool equalIgnoringCase(std::string_view a, std::string_view b);

std::string lowerCase(std::string_view text);

/// The text in quotes for a message: cut after some characters, in printable ASCII whatever it holds.
std::string quoted(std::string_view text);

/// A line `[name]`. What follows the bracket is passed over.
struct SectionHeader {
    std::string_view name; ///< without the blanks around it
    bool closed = true;    ///< whether the closing bracket is there
};

/// The header this line is, if its first character that isn't a blank is an opening bracket. A
/// byte-order mark before it is passed over: it stands in the midst of files that were joined.
std::optional<SectionHeader> sectionHeader(std::string_view line);

} // namespace rockeval

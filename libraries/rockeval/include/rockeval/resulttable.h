#pragma once

#include "rockeval/warning.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace rockeval {

/// One `key=value` line, both without the blanks around them. The value may be empty or hold further
/// equals signs. A line without an equals sign has an empty key and the whole line as its value.
struct ResultEntry {
    std::string key;
    std::string value;
    std::size_t line = 0;
};

/// The lines below one name in brackets. Lines count from 1.
struct ResultSection {
    std::string name; ///< as written between the brackets; empty for lines before the first section
    std::vector<ResultEntry> entries;
    std::size_t line = 0;
};

/// What a .R00 file gives: sections and entries in the order of the file, all text in UTF-8. Keys may
/// recur between sections and, with a warning, within one; the first one in the file answers a look-up.
/// Look-ups take ASCII letters of either case as equal.
struct ResultTable {
    std::vector<ResultSection> sections;
    std::vector<Warning> warnings; ///< in the order of the lines, cut off after a hundred

    /// The value, or null if there is no such entry. Valid as long as the table is unchanged.
    const std::string* find(std::string_view section, std::string_view key) const;

    /// The value as parseNumber reads it; nothing if there is no such entry or it is not a number.
    std::optional<double> number(std::string_view section, std::string_view key) const;
};

} // namespace rockeval

#pragma once

#include <cstddef>
#include <string>

namespace rockeval {

/// Something a reader noticed and left out or passed over. The text is one sentence in plain ASCII
/// without the line number; lines count from 1, and line 0 stands for the file as a whole.
struct Warning {
    std::size_t line = 0;
    std::string text;
};

/// The warning with its line in front, where it has one: "line 4: ...".
inline std::string warningText(const Warning& warning) {
    return warning.line == 0 ? warning.text : "line " + std::to_string(warning.line) + ": " + warning.text;
}

} // namespace rockeval

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

} // namespace rockeval

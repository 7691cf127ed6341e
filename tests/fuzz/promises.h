#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>

/// Ends the run on this input where what was promised does not hold.
inline void require(bool condition) {
    if (!condition)
        std::abort();
}

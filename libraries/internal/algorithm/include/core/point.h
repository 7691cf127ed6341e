#pragma once

#include <cstdint>

namespace algo::core {

/// One sample of a signal, by value.
template <class Scalar, class Values>
struct Point {
    Scalar x = 0.0;
    Scalar y = 0.0;
    std::int32_t index = 0; ///< position in its signal
};

} // namespace algo::core

#pragma once

#include "core/signal1disosampling.h"

#include <cstddef>
#include <cstdint>
#include <memory>

namespace algo::sr_qaqc {

/// A stored curve of `n` samples as the signal that is graded.
///
/// Only the first and the last abscissa are read: the axis becomes an even one. Its step is computed in
/// single precision and divides by the number of samples, so the axis ends one step short; grades
/// depend on both. The arrays are used during the call alone. `n` is above 0.
template <class Scalar, class Values>
std::shared_ptr<const core::Signal1D<Scalar, Values>> rawSignal(const float* x, const float* y, int n) {
    const float step = (x[n - 1] - x[0]) / static_cast<float>(n);
    const auto ordinate = [y](const std::size_t& i) { return static_cast<Scalar>(y[i]); };
    return std::make_shared<core::Signal1DIsoSampling<Scalar, Values>>(
        static_cast<Scalar>(x[0]), static_cast<Scalar>(step), static_cast<std::uint64_t>(n), ordinate);
}

} // namespace algo::sr_qaqc

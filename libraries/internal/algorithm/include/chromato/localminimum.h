#pragma once

#include "core/signal1d.h"

#include <cstddef>
#include <cstdint>

namespace algo::chromato {

/// Whether sample `index` is a local minimum: lower than the sample behind it and not above the one
/// before, so of a flat bottom the last sample counts, also on a shelf of a rising flank. The first and
/// the last sample never do.
template <class Scalar, class Values>
bool isLocalMinimum(const core::Signal1D<Scalar, Values>& signal, std::int32_t index) {
    const Values& y = signal.yValues();
    const auto i = static_cast<std::size_t>(index);
    if (index <= 0 || i + 1 >= y.size()) {
        return false;
    }
    return y[i + 1] > y[i] && y[i - 1] >= y[i];
}

} // namespace algo::chromato

#pragma once

#include "rockeval/rawsignal.h"

#include <cmath>
#include <limits>
#include <stdexcept>
#include <vector>

namespace rockeval {

/// A curve as it is stored: time in seconds and FID, of equal length. Whoever stores or grades a curve
/// takes the values from here, so that all of them hold the same floats.
struct Channels {
    std::vector<float> time;
    std::vector<float> fid;
};

/// Whether narrow takes the value: it is finite and not beyond the largest float.
inline bool fitsFloat(double value) {
    // Not true for NaN either.
    return std::abs(value) <= static_cast<double>(std::numeric_limits<float>::max());
}

/// The nearest float. Throws std::range_error if the value doesn't fit; a curve as read always fits.
inline float narrow(double value) {
    if (!fitsFloat(value)) {
        throw std::range_error(
            "a value of the curve doesn't fit a float; read the curve from its file again");
    }
    return static_cast<float>(value);
}

Channels toChannels(const PyrolysisCurve& curve);

} // namespace rockeval

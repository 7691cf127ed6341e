#pragma once

#include "chromato/peakfilter.h"
#include "core/exception.h"

#include <algorithm>

namespace algo::chromato {

/// Removes peaks that are small beside the highest one of their curve, such as a little light material in
/// front of the main peak. Small means: their rise is below a share of the greatest rise.
template <class Scalar, class Values>
class PeakFilterMinor final : public PeakFilter<Scalar, Values> {
public:
    using typename PeakFilter<Scalar, Values>::PeakType;
    using typename PeakFilter<Scalar, Values>::PeakPosition;
    using typename PeakFilter<Scalar, Values>::ChromatogramType;

    /// `peaks` holds those that are compared; it is read during the call alone. `share` lies in [0, 1]: 0
    /// removes no peak that rises, 1 all but the highest. Any other value raises.
    PeakFilterMinor(const ChromatogramType& peaks, const Scalar& share)
        : m_least(share * greatestRise(peaks)) {
        // Written so that NaN raises too.
        if (!(share >= 0 && share <= 1)) {
            ALGO_RAISE("The share of the highest peak is not between 0 and 1");
        }
    }

    /// The top above the lower valley, in the ordinate's units.
    static Scalar rise(const PeakType& peak) {
        return peak.top()->y - std::min(peak.left()->y, peak.right()->y);
    }

    bool isFiltered(PeakPosition peak) const override { return rise(*peak) < m_least; }

private:
    static Scalar greatestRise(const ChromatogramType& peaks) {
        Scalar greatest = 0;
        for (const PeakType& peak : peaks.peaks()) {
            greatest = std::max(greatest, rise(peak));
        }
        return greatest;
    }

    Scalar m_least;
};

} // namespace algo::chromato

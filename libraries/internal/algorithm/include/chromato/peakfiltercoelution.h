#pragma once

#include "chromato/peakfilter.h"
#include "core/scalarfunction1d.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace algo::chromato {

/// Removes peaks that rise too little above their valleys: shoulders on the flank of a larger peak.
template <class Scalar, class Values>
class PeakFilterCoelution final : public PeakFilter<Scalar, Values> {
public:
    using typename PeakFilter<Scalar, Values>::PeakType;
    using typename PeakFilter<Scalar, Values>::PeakPosition;
    using Baseline = std::shared_ptr<const core::ScalarFunction1D<Scalar>>;

    /// A peak is removed when `criterion` exceeds its ratio. Without a `baseline`, the lower valley is
    /// the base.
    PeakFilterCoelution(const Scalar& criterion, Baseline baseline)
        : m_criterion(criterion), m_baseline(std::move(baseline)) {}

    /// The rise of the top above the base, in units of the step from the base up to the higher valley.
    ///
    /// Two equal valleys make that step 0: a top above them has the ratio plus infinity and stays, one
    /// below them minus infinity and goes, one level with them NaN and stays.
    Scalar ratio(const PeakType& peak) const {
        const Scalar left = peak.left()->y;
        const Scalar right = peak.right()->y;
        const Scalar top = peak.top()->y;
        const Scalar base = m_baseline ? (*m_baseline)(peak.top()->x) : std::min(left, right);
        const Scalar high = std::max(left, right);
        return (top - base) / (high - base);
    }

    bool isFiltered(PeakPosition peak) const override { return m_criterion > ratio(*peak); }

private:
    Scalar m_criterion;
    Baseline m_baseline;
};

} // namespace algo::chromato

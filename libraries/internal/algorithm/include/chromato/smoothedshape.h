#pragma once

#include "chromato/localminimum.h"
#include "core/signal1d.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>

namespace algo::chromato {

/// The shape tests of the detector: what the smoothed samples look like around an index.
///
/// Second derivatives, `(y[j + 2] - y[j + 1] - (y[j - 1] - y[j - 2])) / (2 dx)^2`, are computed once for all
/// samples. A test of an index near either end is false.
template <class Scalar, class Values>
class SmoothedShape {
public:
    using SignalPointer = std::shared_ptr<const core::Signal1D<Scalar, Values>>;

    /// Raises for a signal without samples.
    explicit SmoothedShape(SignalPointer smoothed) : m_smoothed(std::move(smoothed)) {
        const std::uint64_t n = m_smoothed->size();
        const Scalar lastX = m_smoothed->X(n - 1);
        // Divided by the number of samples, not of intervals: every derivative depends on it.
        m_dx = (lastX - m_smoothed->X(0)) / static_cast<Scalar>(n);
        computeSecondDerivatives();
    }

    Scalar dx() const { return m_dx; }
    /// 0 where the stencil does not fit.
    Scalar secondDerivative(std::int32_t index) const {
        const auto i = static_cast<std::size_t>(index);
        return i < m_second.size() ? m_second[i] : 0.0;
    }

    /// A strict local minimum of the second derivative on a positive sample.
    bool isPeakTop(std::int32_t index) const {
        const auto i = static_cast<std::size_t>(index);
        return isInner(i) && m_second[i + 1] > m_second[i] && m_second[i - 1] > m_second[i];
    }

    /// A strict local maximum of the second derivative on a positive sample.
    bool isCurvatureValley(std::int32_t index) const {
        const auto i = static_cast<std::size_t>(index);
        return isInner(i) && m_second[i] > m_second[i + 1] && m_second[i] > m_second[i - 1];
    }

    bool isMinimum(std::int32_t index) const { return isLocalMinimum(*m_smoothed, index); }

    /// Higher than the sample behind it and not below the one before.
    bool isMaximum(std::int32_t index) const {
        const Values& y = m_smoothed->yValues();
        const auto i = static_cast<std::size_t>(index);
        return i != 0 && i + 1 < y.size() && y[i] > y[i + 1] && y[i] >= y[i - 1];
    }

private:
    bool isInner(std::size_t i) const {
        const Values& y = m_smoothed->yValues();
        return i >= 3 && i + 4 <= y.size() && y[i] > 0;
    }

    /// The stencil leaves the middle sample out and divides each inner difference, which spans one
    /// step, by two. It is this engine's own; grades depend on it and on the order of its divisions.
    void computeSecondDerivatives() {
        const Values& y = m_smoothed->yValues();
        m_second.assign(y.size(), 0.0);
        if (y.size() < 5) {
            return;
        }
        const Scalar twoSteps = 2 * m_dx;
        Values slope(y.size() - 1);
        for (std::size_t j = 0; j < slope.size(); ++j) {
            slope[j] = (y[j + 1] - y[j]) / twoSteps;
        }
        for (std::size_t j = 2; j + 3 <= y.size(); ++j) {
            m_second[j] = (slope[j + 1] - slope[j - 2]) / twoSteps;
        }
    }

    SignalPointer m_smoothed;
    Scalar m_dx = 0.0;
    Values m_second;
};

} // namespace algo::chromato

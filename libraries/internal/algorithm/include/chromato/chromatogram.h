#pragma once

#include "chromato/peak.h"

#include <memory>
#include <utility>
#include <vector>

namespace algo::chromato {

/// The peaks found on a signal, in ascending order of their tops.
template <class Scalar, class Values>
class Chromatogram {
public:
    using PeakType = Peak<Scalar, Values>;
    using SignalPointer = std::shared_ptr<const core::Signal1D<Scalar, Values>>;

    Chromatogram(std::vector<PeakType> peaks, SignalPointer signal)
        : m_peaks(std::move(peaks)), m_signal(std::move(signal)) {}

    const std::vector<PeakType>& peaks() const { return m_peaks; }
    std::vector<PeakType>& peaks() { return m_peaks; }
    const SignalPointer& signal() const { return m_signal; }

private:
    std::vector<PeakType> m_peaks;
    SignalPointer m_signal;
};

} // namespace algo::chromato

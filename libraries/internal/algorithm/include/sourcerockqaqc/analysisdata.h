#pragma once

#include "chromato/chromatogram.h"
#include "core/signal1d.h"

#include <memory>
#include <string>
#include <utility>

namespace algo::sr_qaqc {

template <class Scalar, class Values>
class SourceRockQAQCMgr;

/// What the manager keeps for one analysis, updated in place by every later run: each holder of the
/// shared pointer sees the new peaks.
template <class Scalar, class Values>
class AnalysisData {
public:
    using ChromatogramPointer = std::shared_ptr<chromato::Chromatogram<Scalar, Values>>;
    using RawPointer = std::shared_ptr<const core::Signal1D<Scalar, Values>>;
    using SmoothedPointer = std::shared_ptr<core::Signal1D<Scalar, Values>>;

    AnalysisData(std::string name, RawPointer signal, ChromatogramPointer chromatogram,
                 SmoothedPointer smoothed)
        : m_name(std::move(name)), m_chromatogram(std::move(chromatogram)), m_signal(std::move(signal)),
          m_smoothed(std::move(smoothed)) {}

    std::string name() const { return m_name; }
    /// The graded peaks; they stand on the part that was cut out of the raw signal, not on that itself.
    ChromatogramPointer chromatogram() const { return m_chromatogram; }
    RawPointer signal() const { return m_signal; }
    SmoothedPointer smoothed() const { return m_smoothed; }

    void setChromatogram(ChromatogramPointer chromatogram) { m_chromatogram = std::move(chromatogram); }
    void setSmoothed(SmoothedPointer smoothed) { m_smoothed = std::move(smoothed); }

private:
    friend class SourceRockQAQCMgr<Scalar, Values>; // which finds records by their names

    // cppcheck-suppress unusedPrivateFunction ; the manager uses it
    void setName(const std::string& name) { m_name = name; }

    std::string m_name;
    ChromatogramPointer m_chromatogram;
    RawPointer m_signal;
    SmoothedPointer m_smoothed;
};

} // namespace algo::sr_qaqc

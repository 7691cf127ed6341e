#pragma once

#include <cstddef>

namespace algo::chromato {

/// The instrument behind a signal: how wide its peaks are, how it is noisy, what range it samples.
template <class Scalar, class Values, class Noise>
class Chromatograph {
public:
    /// `width` is the average peak width in samples; exactly 0 asks for a hundredth of the `n` samples
    /// instead, at least 1. The sampling step divides by the number of samples, as everywhere in this engine.
    Chromatograph(const std::size_t& n, const Noise& noise, const Scalar& width, const Scalar& xStart,
                  const Scalar& xEnd)
        : averagePeakWidth(width == 0.0 ? defaultWidth(n) : width), m_noise(noise),
          m_samplingStep((xEnd - xStart) / static_cast<Scalar>(n)), m_xEnd(xEnd), m_xStart(xStart) {}

    Noise getNoise() const { return m_noise; }
    Scalar samplingStep() const { return m_samplingStep; }
    Scalar xStart() const { return m_xStart; }
    Scalar xEnd() const { return m_xEnd; }

    Scalar averagePeakWidth; ///< in samples

private:
    static Scalar defaultWidth(std::size_t n) {
        const std::size_t hundredth = n / 100;
        return hundredth < 2 ? 1.0 : static_cast<Scalar>(hundredth);
    }

    Noise m_noise;
    Scalar m_samplingStep;
    Scalar m_xEnd;
    Scalar m_xStart;
};

} // namespace algo::chromato

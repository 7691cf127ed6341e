#pragma once

#include "core/modelerror.h"

#include <cmath>

namespace algo::chromato {

/// The noise expected at an amplitude: a closed formula of five constants that looks at no data:
/// `scale * (c - offset)^exponent`, where `c` is the amplitude, kept between `xMin` and `xMax`.
///
/// A negative base with a fractional exponent gives NaN, which goes on.
template <class Scalar, class Values>
class NoiseXNO : public core::ModelErrorRandom<Scalar, Values> {
public:
    NoiseXNO(Scalar xMin, Scalar xMax, Scalar exponent, Scalar offset, Scalar scale)
        : m_xMin(xMin), m_xMax(xMax), m_exponent(exponent), m_offset(offset), m_scale(scale) {}

    /// The upper clamp comes second, so it wins where the two cross; a NaN counts as `xMin`.
    Scalar evaluate(Scalar x) const override {
        Scalar c = x > m_xMin ? x : m_xMin;
        if (c > m_xMax) {
            c = m_xMax;
        }
        return std::pow(c - m_offset, m_exponent) * m_scale;
    }

    /// Scale, exponent, offset, `xMin`, `xMax`.
    Values parameters() const override { return {m_scale, m_exponent, m_offset, m_xMin, m_xMax}; }

private:
    Scalar m_xMin;
    Scalar m_xMax;
    Scalar m_exponent;
    Scalar m_offset;
    Scalar m_scale;
};

} // namespace algo::chromato

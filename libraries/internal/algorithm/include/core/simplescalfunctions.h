#pragma once

#include "core/exception.h"
#include "core/scalarfunction1d.h"

#include <cmath>

namespace algo::core {

/// The straight line through two points.
///
/// Equal abscissae are not tested here and give infinite or undefined coefficients.
template <class Scalar, class Values>
class Line : public ScalarFunction1D<Scalar> {
public:
    Line(Scalar x1, Scalar y1, Scalar x2, Scalar y2)
        : m_slope((y2 - y1) / (x2 - x1)), m_intercept(y2 - m_slope * x2) {}

    Scalar evaluate(Scalar x) const override { return x * m_slope + m_intercept; }

    Scalar slope() const { return m_slope; }
    Scalar intercept() const { return m_intercept; }

private:
    Scalar m_slope;
    Scalar m_intercept;
};

/// The density of the normal law, scaled to an area:
/// `area / (sqrt(2 pi) sigma) * exp(-(x - mean)^2 / (2 sigma^2))`.
///
/// Raises when `sigma` is not above 0. The domain stays open until it is set.
template <class Scalar>
class NormalDistribution : public ScalarFunction1D<Scalar> {
public:
    NormalDistribution(Scalar sigma, Scalar mean, Scalar area) : m_sigma(sigma), m_mean(mean), m_area(area) {
        if (sigma <= 0.0) {
            ALGO_RAISE("sigma has to be positive for a normal distribution");
        }
        m_coefficient = area / (std::sqrt(2 * pi) * sigma);
    }

    /// The order of the operations is part of the result, to the last bit; the stored coefficient
    /// could differ from what is computed here, so it plays no part.
    Scalar evaluate(Scalar x) const override {
        const Scalar d = x - m_mean;
        return std::exp(d * d / (m_sigma * m_sigma * -2.0)) * (m_area / (std::sqrt(pi + pi) * m_sigma));
    }

    Scalar sigma() const { return m_sigma; }
    Scalar mean() const { return m_mean; }
    Scalar area() const { return m_area; }
    Scalar coefficient() const { return m_coefficient; }

private:
    static constexpr Scalar pi = 3.141592653589793;

    Scalar m_sigma;
    Scalar m_mean;
    Scalar m_coefficient = 0.0;
    Scalar m_area;
};

} // namespace algo::core

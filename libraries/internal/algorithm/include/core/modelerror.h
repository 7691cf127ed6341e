#pragma once

#include "core/scalarfunction1d.h"

#include <random>

namespace algo::core {

/// A law that says how large the error of a model is at a point.
template <class Scalar, class Values>
class ModelError : public ScalarFunction1D<Scalar> {};

/// A law that can also draw errors of its size. Copies draw the same sequence.
template <class Scalar, class Values>
class ModelErrorRandom : public ModelError<Scalar, Values> {
public:
    /// A normal deviate of mean 0 whose standard deviation is the law's value at `x`.
    virtual Scalar draw(Scalar x) {
        // A unit deviate, scaled: the distribution itself doesn't allow a deviation of 0.
        const Scalar sigma = (*this)(x);
        std::normal_distribution<Scalar> distribution(0.0, 1.0);
        return distribution(m_generator) * sigma;
    }
    virtual Values parameters() const = 0;

private:
    std::mt19937 m_generator{1};
};

} // namespace algo::core

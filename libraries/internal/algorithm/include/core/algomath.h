#pragma once

#include "core/exception.h"

namespace algo::core {

/// Formulas that stand on their own.
template <class Values>
class Math {
public:
    Math() = delete;

    /// The value at `x` of the parabola through three points, in Newton's divided-difference form.
    ///
    /// Raises when two of the abscissae are equal; a NaN among them passes. The order of the
    /// operations is part of the result, to the last bit.
    template <class Scalar>
    static Scalar interpolateQuadratic(Scalar x, Scalar x0, Scalar y0, Scalar x1, Scalar y1, Scalar x2,
                                       Scalar y2) {
        if (x0 == x1 || x0 == x2 || x1 == x2) {
            ALGO_RAISE("interpolateQuadratic needs 3 distinct points");
        }
        const Scalar d1 = (y1 - y0) / (x1 - x0);
        const Scalar d2 = (y2 - y1) / (x2 - x1);
        const Scalar dd = (d2 - d1) / (x2 - x0);
        const Scalar u = x - x0;
        return dd * u * (x - x1) + u * d1 + y0;
    }
};

} // namespace algo::core

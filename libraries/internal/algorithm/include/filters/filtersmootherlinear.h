#pragma once

#include "core/filter.h"
#include "core/simplescalfunctions.h"
#include "core/tostring.h"
#include "filters/filterconvolutor.h"
#include "log/methodscope.h"

#include <memory>

namespace algo::filter {

/// A signal smoothed by a Gaussian of unit area, cut at five standard deviations on each side.
///
/// `maskSize` is the standard deviation in samples, whatever the spacing; about ten times as many
/// weights apply, and they are not normalised again after the cut. Raises when it is not above 0 or
/// asks for too many weights. The log, which may be null, is told the mask size.
template <class Scalar, class Values>
class FilterSmootherLinear : public core::Filter<Scalar, Values> {
    using Base = core::Filter<Scalar, Values>;

public:
    FilterSmootherLinear(typename Base::SignalPointer signal, double maskSize, log::Node* log,
                         VectorForm form = fastestVectorForm())
        : Base(signal), m_maskSize(maskSize) {
        const log::MethodScope scope(log, __PRETTY_FUNCTION__);
        scope.remark("Mask size:", core::toString(maskSize));
        if (maskSize <= 1.0) {
            // Without effect on the result, since the smoothing below overwrites it: a small mask is
            // smoothed like any other.
            this->copyPoints(*signal);
        }
        constexpr double halfWidth = 5.0; // standard deviations
        core::NormalDistribution<Scalar> gaussian(maskSize, 0.0, 1.0);
        gaussian.setDomain(maskSize * -halfWidth, maskSize * halfWidth);
        const auto convolved = std::make_shared<FilterConvolutor<Scalar, Values>>(signal, gaussian, form);
        this->takePoints(*convolved);
    }

    double maskSize() const { return m_maskSize; }

private:
    double m_maskSize;
};

} // namespace algo::filter

#pragma once

#include "core/conversions.h"
#include "core/filter.h"
#include "core/memorymanager.h"
#include "core/scalarfunction1d.h"
#include "filters/correlation.h"

#include <cstdint>
#include <utility>

namespace algo::filter {

/// A signal weighted by a scalar function of finite domain, as a signal with the input's abscissae:
/// `out[i]` is the sum of `weight[j] * in[i + first + j]`, added up with ascending `j`.
///
/// The kernel's axis counts samples, not units of the abscissa. Its weights are taken at unit steps
/// from `xmin`, as many as the width truncates to, so its positive end is never sampled; they are
/// applied from the truncated `xmin` on, which for a fractional one is not where they were taken. The
/// mask isn't flipped: only a symmetric kernel makes this a convolution. Past either end of the input
/// the end sample stands in.
///
/// Raises for a kernel without a domain, and for a mask of more than 10,000,000 weights. Takes its
/// mask from the unguarded scratch pool: one filter at a time.
template <class Scalar, class Values>
class FilterConvolutor : public core::Filter<Scalar, Values> {
    using Base = core::Filter<Scalar, Values>;

public:
    FilterConvolutor(typename Base::SignalPointer input, const core::ScalarFunction1D<Scalar>& kernel,
                     VectorForm form = fastestVectorForm())
        : Base(std::move(input)) {
        if (!kernel.restricted()) {
            ALGO_RAISE(
                "Convolution can only be achieved with a scalar function that is restricted in X domain "
                "(this can be fixed easily)");
        }
        const auto mask = sampled(kernel);
        this->xStorage() = this->input()->xValues();
        correlate(form, mask.data(), core::truncateToInt32(kernel.xmin()), this->input()->yValues(),
                  this->yStorage());
        if (this->size() != 0) {
            this->setDomainFromPoints();
        }
    }

private:
    static core::Vector<Values> sampled(const core::ScalarFunction1D<Scalar>& kernel) {
        const std::uint64_t width = core::truncateToUInt64(kernel.xmax() - kernel.xmin());
        auto mask = core::MemoryManager<Values>::getVector(width);
        for (std::uint64_t j = 0; j < mask.size(); ++j) {
            mask.data()[j] = kernel(kernel.xmin() + static_cast<Scalar>(j));
        }
        return mask;
    }
};

} // namespace algo::filter

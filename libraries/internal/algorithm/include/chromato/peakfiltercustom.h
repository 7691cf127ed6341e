#pragma once

#include "chromato/peakfilter.h"

#include <utility>

namespace algo::chromato {

/// Removes the peaks that a function answers true for; an empty one raises `std::bad_function_call`.
template <class Scalar, class Values, class Function>
class PeakFilterCustom final : public PeakFilter<Scalar, Values> {
public:
    using typename PeakFilter<Scalar, Values>::PeakPosition;

    explicit PeakFilterCustom(Function predicate) : m_predicate(std::move(predicate)) {}

    bool isFiltered(PeakPosition peak) const override { return m_predicate(peak); }

private:
    Function m_predicate;
};

} // namespace algo::chromato

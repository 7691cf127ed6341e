#pragma once

#include "sourcerockqaqc/grading.h"

#include <memory>
#include <string>
#include <vector>

/// The curve that the benchmarks measure: one pyrolysis of 1,264 seconds, made from a few formulas, in
/// the layout of the instrument. Its graded part has 955 samples, which a mask of 477 weights smooths.
class MeasuredCurve {
public:
    using Values = std::vector<double>;
    using Signal = algo::core::Signal1D<double, Values>;

    MeasuredCurve();

    /// The whole raw file, with an oxidation section.
    [[nodiscard]] const std::string& fileBytes() const { return m_bytes; }
    [[nodiscard]] const std::shared_ptr<const Signal>& raw() const { return m_raw; }
    /// The part that is smoothed.
    [[nodiscard]] const std::shared_ptr<const Signal>& even() const { return m_even; }

private:
    std::string m_bytes;
    std::shared_ptr<const Signal> m_raw;
    std::shared_ptr<const Signal> m_even;
};

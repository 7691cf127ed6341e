#pragma once

#include "sourcerockqaqc/grading.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

/// All stages of a grading as numbers, to be compared bit by bit with another form of the engine.
namespace stages {

using Values = std::vector<double>;
using Stages = std::map<std::string, Values>;

inline Values numbersOf(const std::vector<algo::chromato::Peak<double, Values>>& peaks) {
    Values numbers;
    for (const auto& peak : peaks) {
        for (const int number : {peak.left()->index, peak.top()->index, peak.right()->index,
                                 int{peak.left().atEnd()}, int{peak.right().atEnd()}}) {
            numbers.push_back(number);
        }
        numbers.insert(numbers.end(), {peak.top()->x, peak.top()->y, peak.category});
    }
    return numbers;
}

inline Stages of(const std::shared_ptr<const algo::core::Signal1D<double, Values>>& raw,
                 const algo::sr_qaqc::SourceRockQAQCSettings<double, Values>& settings) {
    const auto result = algo::sr_qaqc::grade<double, Values>(raw, settings);
    const algo::chromato::SmoothedShape<double, Values> shape(result.smoothed);
    Values second;
    for (std::size_t i = 0; i < result.smoothed->size(); ++i) {
        second.push_back(shape.secondDerivative(static_cast<std::int32_t>(i)));
    }
    Values coeluted;
    for (const auto& removed : result.coeluted) {
        coeluted.insert(coeluted.end(), {double(removed.peak.top()->index), removed.ratio});
    }
    return {{"raw_x", raw->xValues()},
            {"raw_y", raw->yValues()},
            {"start", {double(result.start.index), result.start.x}},
            {"extracted_x", result.extracted->xValues()},
            {"extracted_y", result.extracted->yValues()},
            {"even_x", result.even->xValues()},
            {"even_y", result.even->yValues()},
            {"mean", {double(result.mean)}},
            {"smoothed_x", result.smoothed->xValues()},
            {"smoothed", result.smoothed->yValues()},
            {"derivative_step", {shape.dx()}},
            {"second_derivative", second},
            {"detected", numbersOf(result.candidates->peaks())},
            {"early", numbersOf(result.early)},
            {"coeluted", coeluted},
            {"peaks", numbersOf(result.chromatogram->peaks())},
            {"quality", {double(algo::sr_qaqc::qualityCode(*result.chromatogram))}}};
}

} // namespace stages

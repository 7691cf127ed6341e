// Prints every stage of the grading of curves, for a comparison bit by bit with another form of the
// engine or another build of this one.
//
// Standard input has one curve a line: sensitivity, coelution, height, the number of samples n, then n
// abscissae and n ordinates, hexadecimal or decimal. Standard output has one line of
// "stage=number,number, " and so on for each, all numbers hexadecimal, or "error=" and the message.

#include "sourcerockqaqc/grading.h"
#include "sourcerockqaqc/rawsignal.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using Values = std::vector<double>;
using Signal = algo::core::Signal1D<double, Values>;
using Settings = algo::sr_qaqc::SourceRockQAQCSettings<double, Values>;

/// With `strtod`, since streams don't read hexadecimal numbers.
double next() {
    std::string word;
    std::cin >> word;
    return std::strtod(word.c_str(), nullptr);
}

std::vector<float> next(int count) {
    std::vector<float> values(static_cast<std::size_t>(count));
    std::generate(values.begin(), values.end(), [] { return static_cast<float>(next()); });
    return values;
}

void print(const char* stage, const Values& values) {
    std::printf(" %s=", stage);
    for (const double value : values) {
        std::printf("%a,", value);
    }
}

void print(const char* stage, const std::vector<algo::chromato::Peak<double, Values>>& peaks) {
    Values numbers;
    for (const auto& peak : peaks) {
        for (const int number : {peak.left()->index, peak.top()->index, peak.right()->index,
                                 int{peak.left().atEnd()}, int{peak.right().atEnd()}}) {
            numbers.push_back(number);
        }
        numbers.insert(numbers.end(), {peak.top()->x, peak.top()->y, peak.category});
    }
    print(stage, numbers);
}

void printStages(const std::shared_ptr<const Signal>& raw, const Settings& settings) {
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
    print("raw_x", raw->xValues());
    print("raw_y", raw->yValues());
    print("start", Values{double(result.start.index), result.start.x});
    print("extracted_x", result.extracted->xValues());
    print("extracted_y", result.extracted->yValues());
    print("even_x", result.even->xValues());
    print("even_y", result.even->yValues());
    print("mean", Values{double(result.mean)});
    print("smoothed_x", result.smoothed->xValues());
    print("smoothed", result.smoothed->yValues());
    print("derivative_step", Values{shape.dx()});
    print("second_derivative", second);
    print("detected", result.candidates->peaks());
    print("early", result.early);
    print("coeluted", coeluted);
    print("peaks", result.chromatogram->peaks());
    print("quality", Values{double(algo::sr_qaqc::qualityCode(*result.chromatogram))});
}

} // namespace

int main() {
    while (std::cin >> std::ws && !std::cin.eof()) {
        const Settings settings{next(), next(), next()};
        const int n = static_cast<int>(next());
        const auto x = next(n);
        const auto y = next(n);
        try {
            printStages(n == 0 ? std::make_shared<const Signal>(0)
                               : algo::sr_qaqc::rawSignal<double, Values>(x.data(), y.data(), n),
                        settings);
        } catch (const std::length_error&) {
            std::printf("error=length");
        } catch (const std::exception& failure) {
            const std::string text = failure.what();
            std::printf("error=%s", text.substr(text.find('\n') + 1).c_str());
        }
        std::printf("\n");
    }
    return 0;
}

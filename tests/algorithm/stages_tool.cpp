// Prints every stage of the grading of curves, for a comparison bit by bit with another form of the
// engine or another build of this one.
//
// Standard input has one curve a line: sensitivity, coelution, height, the number of samples n, then n
// abscissae and n ordinates, hexadecimal or decimal. Standard output has one line of
// "stage=number,number, " and so on for each, all numbers hexadecimal, or "error=" and the message.

#include "sourcerockqaqc/rawsignal.h"
#include "stages.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using stages::Values;
using Signal = algo::core::Signal1D<double, Values>;

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

} // namespace

int main() {
    while (std::cin >> std::ws && !std::cin.eof()) {
        const algo::sr_qaqc::SourceRockQAQCSettings<double, Values> settings{next(), next(), next()};
        const int n = static_cast<int>(next());
        const auto x = next(n);
        const auto y = next(n);
        try {
            const auto signal = n == 0 ? std::make_shared<const Signal>(0)
                                       : algo::sr_qaqc::rawSignal<double, Values>(x.data(), y.data(), n);
            for (const auto& [stage, numbers] : stages::of(signal, settings)) {
                std::printf(" %s=", stage.c_str());
                for (const double number : numbers) {
                    std::printf("%a,", number);
                }
            }
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

// Grades a curve with the installed engine and looks at the text of a failure.
#include "every_header.h"

#include <cmath>
#include <exception>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

using Values = std::vector<double>;

namespace {

int gradeOfOnePeak() {
    std::vector<float> seconds;
    std::vector<float> ordinates;
    for (int i = 0; i < 600; ++i) {
        const auto x = static_cast<float>(i);
        seconds.push_back(x);
        ordinates.push_back(0.1F * std::abs(x - 100.0F) +
                            1000.0F * std::exp(-std::pow((x - 300.0F) / 30.0F, 2.0F)));
    }
    using Manager = algo::sr_qaqc::SourceRockQAQCMgr<double, Values>;
    Manager manager(std::make_shared<Manager::Settings>());
    manager.addAnalysis(algo::sr_qaqc::rawSignal<double, Values>(seconds.data(), ordinates.data(), 600),
                        "one peak");
    return manager.getQuality("one peak");
}

std::string failure() {
    try {
        algo::core::Signal1D<double, Values>(1).X(1);
    } catch (const std::exception& error) {
        return error.what();
    }
    return {};
}

} // namespace

int main() {
    const int grade = gradeOfOnePeak();
    const std::string text = failure();
    std::cout << "grade " << grade << "; " << text << '\n';
    const bool relative =
        text.find("( file libraries/internal/algorithm/include/core/signal1d.h)") != std::string::npos;
    if (grade != 1 || !relative) {
        std::cerr
            << "expected grade 1 and a failure that names its file from the root of the engine's project\n";
        return 1;
    }
    return 0;
}

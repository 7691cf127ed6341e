#include "gradereport/candidates.h"
#include "sourcerockqaqc/rawsignal.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace {

using gradereport::Candidates;
using gradereport::EngineSettings;
using gradereport::Grading;
using Values = std::vector<double>;

/// Bells of random places and heights over a decay, with noise enough for candidates that nearly stand.
std::shared_ptr<const Grading::Signal> randomCurve(unsigned seed) {
    std::mt19937 random(seed);
    const auto upTo = [&random](unsigned limit) { return static_cast<double>(random() % limit); };
    const int bells = 1 + static_cast<int>(random() % 4);
    std::vector<double> y(1200);
    for (int bell = 0; bell < bells; ++bell) {
        const double centre = 250 + upTo(700);
        const double height = 200 + upTo(2500);
        const double width = 25 + upTo(90);
        for (std::size_t t = 0; t < y.size(); ++t) {
            const double distance = (static_cast<double>(t) - centre) / width;
            y[t] += height * std::exp(-0.5 * distance * distance);
        }
    }
    std::vector<float> times;
    std::vector<float> values;
    const double level = upTo(900);
    for (std::size_t t = 0; t < y.size(); ++t) {
        times.push_back(static_cast<float>(t));
        values.push_back(static_cast<float>(
            std::round(y[t] + level + upTo(40) + 900 * std::exp(-static_cast<double>(t) / 40))));
    }
    return algo::sr_qaqc::rawSignal<double, Values>(times.data(), values.data(), 1200);
}

std::vector<double> hundredths(int first, int last) {
    std::vector<double> values;
    for (int i = first; i <= last; ++i)
        values.push_back(i / 100.0);
    return values;
}

/// Grades again at every value.
std::vector<std::size_t> changesByGrading(const std::shared_ptr<const Grading::Signal>& signal,
                                          EngineSettings settings, double EngineSettings::*field,
                                          const std::vector<double>& values) {
    std::vector<std::size_t> changes;
    int before = 0;
    for (std::size_t i = 0; i < values.size(); ++i) {
        settings.*field = values[i];
        const int code = algo::sr_qaqc::qualityCode(*algo::sr_qaqc::grade(signal, settings).chromatogram);
        if (i > 0 && code != before)
            changes.push_back(i);
        before = code;
    }
    return changes;
}

} // namespace

TEST(Candidates, tell_the_codes_and_their_changes_that_grading_again_gives_everywhere) {
    const std::vector<double> coelutions = hundredths(20, 200);
    const std::vector<double> heights = hundredths(0, 500);
    std::size_t byCoelution = 0;
    std::size_t byHeight = 0;
    for (unsigned seed = 0; seed < 12; ++seed) {
        const auto signal = randomCurve(seed);
        EngineSettings settings;
        settings.sensitivity = 0.2 + 0.01 * (seed * 7 % 79);
        auto part = algo::sr_qaqc::usefulPart<double, Values>(signal);
        algo::sr_qaqc::detectPeaks<double, Values>(part, settings.sensitivity);
        const Candidates candidates(part, 0.2);
        for (const double coelution : {0.2, 0.8, 1.25}) {
            settings.coelution = coelution;
            settings.heightCriteria = 2.0;
            const auto along = candidates.changesByCoelution(coelutions, 2.0);
            EXPECT_EQ(along, changesByGrading(signal, settings, &EngineSettings::coelution, coelutions));
            const auto upward = candidates.changesByHeight(coelution, heights);
            EXPECT_EQ(upward, changesByGrading(signal, settings, &EngineSettings::heightCriteria, heights));
            const auto graded = algo::sr_qaqc::grade(signal, settings);
            EXPECT_EQ(candidates.quality(coelution, 2.0), algo::sr_qaqc::qualityCode(*graded.chromatogram));
            byCoelution += along.size();
            byHeight += upward.size();
        }
    }
    EXPECT_GT(byCoelution, 20U) << "too tame to find a fault";
    EXPECT_GT(byHeight, 2U);
}

#include "enginetest.h"

#include "sourcerockqaqc/rawsignal.h"

#include <algorithm>
#include <cmath>
#include <random>

using namespace enginetest;

namespace {

const double notANumber = std::nan("");
constexpr double infinite = HUGE_VAL;

/// Grades and gives "grade", or the failure in a word; any other exception ends the test.
std::string outcome(const SignalPointer& signal, const Settings& settings = {}) {
    try {
        const auto result = algo::sr_qaqc::grade<double, Values>(signal, settings);
        EXPECT_EQ(result.early.size() + result.coeluted.size() + result.chromatogram->peaks().size(),
                  result.candidates->peaks().size());
        return "grade";
    } catch (const algo::core::ErrorParameter&) {
        return "parameter";
    } catch (const std::length_error&) {
        return "length";
    } catch (const Failure& failure) {
        const std::string text = failure.what();
        for (const std::string known : {"index out of", "sigma", "over-sized"}) {
            if (text.find(known, text.find('\n')) != std::string::npos) {
                return known;
            }
        }
        throw;
    }
}

struct Chance {
    double pick(const Values& values) { return values[generator() % values.size()]; }

    /// Even steps from `x0` on under a level with noise on it.
    void fill(int run, double x0, double step, double level, double noise) {
        x.clear();
        y.clear();
        const auto n = 1 + generator() % (run % 20 == 0 ? 300 : (run % 4 == 0 ? 3 : 40));
        for (unsigned i = 0; i < n; ++i) {
            x.push_back(x0 + i * step);
            y.push_back(level * (1 + noise * static_cast<double>(generator() % 1000)));
        }
    }

    std::mt19937 generator{11};
    Values x;
    Values y;
};

} // namespace

TEST(Hostile, odd_levels_axes_and_settings_give_a_grade_or_a_stated_failure) {
    Chance chance;
    const Values odd{notANumber, infinite, -infinite, 0, 1, 3e9, -3e9, 1e308, -1e308};
    int grades = 0;
    for (int run = 0; run < 4000; ++run) {
        chance.fill(run, chance.pick({0, 0, 0, 100, -100, 1e15, -1e300}),
                    chance.pick({1, 1, 1, 0, -1, 1e-320, 1e30, 0.01}),
                    chance.pick({0, 1, -1, 1e9, -1e9, 3e9, 1e300, -1e300, 1e-310}),
                    chance.pick({0, 0, 0.001, 1}));
        for (int i = run % 4; i > 1; --i) {
            (run % 7 == 0 ? chance.x : chance.y)[chance.generator() % chance.x.size()] = chance.pick(odd);
        }
        Settings settings;
        if (run % 2 == 0) {
            settings = {chance.pick({0.001, 0.2, 0.99, 0.05, 0, 1, notANumber, infinite}),
                        chance.pick({0, 2, -1, infinite, notANumber}), chance.pick({0, 5, -1, notANumber})};
        }
        grades += outcome(signalOf(chance.x, chance.y), settings) == "grade" ? 1 : 0;
    }
    EXPECT_GT(grades, 400);
}

TEST(Hostile, a_stored_curve_whose_useful_part_stands_is_graded_wherever_the_sliders_stand) {
    Chance chance;
    int counts[2] = {0, 0};
    for (int run = 0; run < 3000; ++run) {
        chance.fill(run, chance.pick({0, 0, 0, 100, -100, 1e15, -3e38}),
                    chance.pick({1, 1, 1, 0.01, -1, 1e-38, 1e30}),
                    chance.pick({0, 1, -1, 3e9, 1e38, -1e38, 1e-40}), 0.001);
        const std::vector<float> x(chance.x.begin(), chance.x.end());
        const std::vector<float> y(chance.y.begin(), chance.y.end());
        const auto signal =
            algo::sr_qaqc::rawSignal<double, Values>(x.data(), y.data(), static_cast<int>(x.size()));
        bool stands = true;
        try {
            algo::sr_qaqc::usefulPart<double, Values>(signal);
        } catch (const std::exception&) {
            stands = false;
        }
        for (const double sensitivity : {0.2, 0.5, 0.99}) {
            for (const double coelution : {0.2, 2.0}) {
                EXPECT_EQ(outcome(signal, {sensitivity, coelution, 5.0}) == "grade", stands) << "run " << run;
            }
        }
        ++counts[stands ? 1 : 0];
    }
    EXPECT_GT(std::min(counts[0], counts[1]), 100);
}

TEST(Hostile, level_curves_have_a_grade) {
    for (const double level : {7.0, 0.0, -5.0, 1e9, notANumber, infinite}) { // 1e9: the integer sum overflows
        EXPECT_EQ(outcome(counted(Values(100, level))), "grade") << level;
    }
}

// What is said about a grading, held against the engine.
#include "gradereport/candidates.h"
#include "gradereport/describe.h"
#include "gradereport/enginetext.h"
#include "gradereport/gradereason.h"
#include "gradereport/nearestchange.h"
#include "sourcerockqaqc/rawsignal.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <random>
#include <set>

using namespace gradereport;

namespace {

using Values = std::vector<double>;
using SignalPointer = std::shared_ptr<const Grading::Signal>;

struct Bell {
    double centre, height, width;
};

/// A curve of 1,200 seconds: a decay at the start, bells, a level, and noise of whole numbers below a limit.
SignalPointer curve(const std::vector<Bell>& bells, double level = 50, unsigned noise = 1,
                    std::mt19937 random = {}) {
    std::vector<float> x;
    std::vector<float> y;
    for (int t = 0; t < 1200; ++t) {
        double value = level + static_cast<double>(random() % noise) + 900 * std::exp(-t / 40.0);
        for (const Bell& bell : bells) {
            const double distance = (t - bell.centre) / bell.width;
            value += bell.height * std::exp(-0.5 * distance * distance);
        }
        x.push_back(static_cast<float>(t));
        y.push_back(static_cast<float>(std::round(value)));
    }
    return algo::sr_qaqc::rawSignal<double, Values>(x.data(), y.data(), 1200);
}

/// Noise enough for candidates that nearly stand.
SignalPointer randomCurve(unsigned seed) {
    std::mt19937 random(seed);
    const auto upTo = [&random](unsigned limit) { return static_cast<double>(random() % limit); };
    std::vector<Bell> bells(1 + random() % 4);
    for (Bell& bell : bells)
        bell = {250 + upTo(700), 200 + upTo(2500), 25 + upTo(90)};
    return curve(bells, upTo(900), 40, random);
}

int codeOf(const SignalPointer& signal, const EngineSettings& settings) {
    return algo::sr_qaqc::qualityCode(*algo::sr_qaqc::grade(signal, settings).chromatogram);
}

/// Grades again at every value.
std::vector<std::size_t> changesByGrading(const SignalPointer& signal, EngineSettings settings,
                                          double EngineSettings::*field, const Values& values) {
    std::vector<std::size_t> changes;
    int before = 0;
    for (std::size_t i = 0; i < values.size(); ++i) {
        settings.*field = values[i];
        const int code = codeOf(signal, settings);
        if (i > 0 && code != before)
            changes.push_back(i);
        before = code;
    }
    return changes;
}

const std::vector<SignalPointer> curves{
    curve({{600, 3000, 80}}),
    curve({{600, 800, 220}}, 900),
    curve({{400, 2500, 60}, {800, 3000, 60}}),
    curve({{450, 2200, 80}, {700, 3000, 80}}),
    curve({{300, 2500, 45}, {600, 3000, 45}, {900, 2800, 45}}),
    curve({{420, 900, 60}, {560, 2500, 70}, {800, 700, 70}}, 200),
    curve({{1400, 3000, 350}}),
};

/// Each curve with three criteria of coelution.
template <class Action>
void eachGrading(const Action& action) {
    for (const SignalPointer& signal : curves) {
        for (const double coelution : {0.6, 1.25, 1.8}) {
            EngineSettings settings;
            settings.coelution = coelution;
            action(signal, algo::sr_qaqc::grade(signal, settings), settings);
        }
    }
}

} // namespace

TEST(Candidates, tell_the_codes_and_their_changes_that_grading_again_gives_everywhere) {
    Values coelutions;
    Values heights;
    for (int i = 0; i <= 500; ++i) {
        heights.push_back(i / 100.0);
        if (i >= 20 && i <= 200)
            coelutions.push_back(i / 100.0);
    }
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
            const auto along = candidates.changesByCoelution(coelutions, 2.0);
            EXPECT_EQ(along, changesByGrading(signal, settings, &EngineSettings::coelution, coelutions));
            const auto upward = candidates.changesByHeight(coelution, heights);
            EXPECT_EQ(upward, changesByGrading(signal, settings, &EngineSettings::heightCriteria, heights));
            EXPECT_EQ(candidates.quality(coelution, 2.0), codeOf(signal, settings));
            byCoelution += along.size();
            byHeight += upward.size();
        }
    }
    EXPECT_GT(byCoelution, 20U) << "too tame to find a fault";
    EXPECT_GT(byHeight, 2U);
}

TEST(NearestChange, grading_again_behind_it_gives_that_code_and_before_it_the_present_one) {
    std::size_t byHeight = 0;
    std::size_t byCoelution = 0;
    eachGrading([&](const SignalPointer& signal, const Grading& grading, const EngineSettings& settings) {
        const auto change = nearestChange(grading, settings);
        if (!change)
            return;
        const bool isHeight = change->setting == "height";
        ++(isHeight ? byHeight : byCoelution);
        double EngineSettings::*const field =
            isHeight ? &EngineSettings::heightCriteria : &EngineSettings::coelution;
        EngineSettings changed = settings;
        changed.*field = change->value;
        EXPECT_EQ(codeOf(signal, changed), change->quality);
        EXPECT_NE(change->quality, codeOf(signal, settings));
        EXPECT_EQ(change->upward, change->value > settings.*field);
        changed.*field += change->upward ? -0.01 : 0.01; // back towards the present one
        EXPECT_EQ(codeOf(signal, changed), codeOf(signal, settings));
    });
    EXPECT_GT(byHeight, 2U);
    EXPECT_GT(byCoelution, 2U);
    // Two clean peaks: whatever the height, two stand, and their ratios lie far above every coelution.
    EXPECT_FALSE(nearestChange(algo::sr_qaqc::grade(curves[2], EngineSettings()), EngineSettings()));
}

TEST(GradeReason, names_what_stands_what_fell_and_against_which_limits) {
    const EngineSettings settings;
    const auto level = algo::sr_qaqc::grade(curves[0], settings).mean;
    const std::string threshold = std::to_string(level) + " (" + std::to_string(2 * level) + ")";
    const std::vector<std::pair<std::size_t, std::string>> parts{
        {0, "One peak stands, at "},
        {0, "reaches 2 × the mean level of " + threshold},
        {1, "stays below 2 ×"},
        {2, "Two peaks stand, at "},
        {4, "Three peaks stand"},
        {4, "counts as flat"},
        {5, "fell to coelution (limit 1.25)"},
        {6, "No peak stands"},
    };
    for (const auto& [index, part] : parts) {
        const std::string reason = gradeReason(algo::sr_qaqc::grade(curves[index], settings), settings);
        EXPECT_NE(reason.find(part), std::string::npos) << reason;
        EXPECT_EQ(reason.find('.', reason.size() - 2), reason.size() - 1) << reason;
    }
}

// The numbers are those of the English sentence, which the test above holds to the grading.
TEST(GradeReason, says_the_same_in_french_with_commas_and_leaves_no_english_word) {
    const auto digits = [](std::string text) {
        const auto isOther = [](unsigned char c) { return std::isdigit(c) == 0; };
        text.erase(std::remove_if(text.begin(), text.end(), isOther), text.end());
        return text;
    };
    eachGrading([&](const SignalPointer&, const Grading& grading, const EngineSettings& settings) {
        const std::string french = gradeReason(grading, settings, Language::french);
        EXPECT_EQ(digits(french), digits(gradeReason(grading, settings))) << french;
        EXPECT_EQ(french.find('.'), french.size() - 1) << french;
        for (const char* const word : {" peak", "stand", "with ", "would", " it ", " and ", "fell", " or "})
            EXPECT_EQ(french.find(word), std::string::npos) << french;
    });
    const std::string lone =
        gradeReason(algo::sr_qaqc::grade(curves[1], EngineSettings()), EngineSettings(), Language::french);
    EXPECT_NE(lone.find("son sommet reste sous 2 × le niveau moyen de "), std::string::npos) << lone;
    EXPECT_NE(lone.find(" ou moins, elle serait bonne."), std::string::npos) << lone;
}

TEST(Describe, the_record_repeats_what_the_engine_decided) {
    const auto grading = algo::sr_qaqc::grade(curves[3], EngineSettings());
    const auto record = describe(*curves[3], grading, EngineSettings(), Curves::included);
    EXPECT_EQ(record.points, 1200U);
    EXPECT_EQ(record.gradedPoints, grading.even->size());
    EXPECT_EQ(record.start, grading.start.x);
    EXPECT_EQ(record.mean, grading.mean);
    ASSERT_EQ(record.peaks.size(), grading.chromatogram->peaks().size());
    EXPECT_EQ(record.removed.size() + record.peaks.size(), grading.candidates->peaks().size());
    EXPECT_EQ(grading.even->Y(record.peaks.at(0).top), record.peaks[0].y);
    EXPECT_EQ(record.raw.y.size(), 1200U);
    EXPECT_EQ(record.smoothed.x.front(), grading.even->X(0));
    EXPECT_TRUE(describe(*curves[3], grading, EngineSettings(), Curves::leftOut).raw.x.empty());
}

TEST(EngineText, every_refusal_of_a_curve_has_a_french_form) {
    std::set<std::string> said;
    for (const double start : {-40.0, 0.0, 170.0, 400.0}) {
        for (const double step : {0.0, 0.3, 1.0, 90.0, 1e6}) {
            for (const int points : {1, 2, 3, 5, 40, 400}) {
                std::vector<float> x;
                std::vector<float> y;
                for (int i = 0; i < points; ++i) {
                    x.push_back(static_cast<float>(start + step * i * i / std::max(1, points / 2)));
                    y.push_back(10.0F * static_cast<float>(i % 7));
                }
                try {
                    (void)algo::sr_qaqc::grade<double, Values>(
                        algo::sr_qaqc::rawSignal<double, Values>(x.data(), y.data(), points), {});
                } catch (const std::exception& error) {
                    const std::string english = engineText(error.what(), Language::english);
                    said.insert(english);
                    EXPECT_NE(engineText(error.what(), Language::french), english);
                }
            }
        }
    }
    EXPECT_GE(said.size(), 2U) << "too few of the refusals were met";
    EXPECT_EQ(
        engineText("Error in f ( file g) :\ncan not extrapolate at X=1.5: index=7, size=8", Language::french),
        "extrapolation impossible en X = 1.5 : indice = 7, taille = 8");
    EXPECT_EQ(engineText("vector", Language::french), "refus de la bibliothèque standard : vector");
}

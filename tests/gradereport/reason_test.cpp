#include "gradereport/describe.h"
#include "gradereport/gradereason.h"
#include "gradereport/nearestchange.h"
#include "sourcerockqaqc/rawsignal.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace {

using gradereport::EngineSettings;
using gradereport::gradeReason;
using gradereport::Grading;
using gradereport::nearestChange;
using Values = std::vector<double>;

struct Bell {
    float centre;
    float height;
    float width;
};

/// A curve of 1,200 seconds: a decay at the start, bells, and a level.
std::shared_ptr<const Grading::Signal> curve(std::initializer_list<Bell> bells, float level = 50.0F) {
    std::vector<float> x;
    std::vector<float> y;
    for (int t = 0; t < 1200; ++t) {
        const auto time = static_cast<float>(t);
        float value = level + 900.0F * std::exp(-time / 40.0F);
        for (const Bell& bell : bells) {
            const float distance = (time - bell.centre) / bell.width;
            value += bell.height * std::exp(-0.5F * distance * distance);
        }
        x.push_back(time);
        y.push_back(std::round(value));
    }
    return algo::sr_qaqc::rawSignal<double, Values>(x.data(), y.data(), 1200);
}

int codeOf(const std::shared_ptr<const Grading::Signal>& signal, const EngineSettings& settings) {
    return algo::sr_qaqc::qualityCode(*algo::sr_qaqc::grade(signal, settings).chromatogram);
}

const std::vector<std::shared_ptr<const Grading::Signal>>& curves() {
    static const std::vector<std::shared_ptr<const Grading::Signal>> all = {
        curve({{600, 3000, 80}}),
        curve({{600, 800, 220}}, 900),
        curve({{400, 2500, 60}, {800, 3000, 60}}),
        curve({{450, 2200, 80}, {700, 3000, 80}}),
        curve({{300, 2500, 45}, {600, 3000, 45}, {900, 2800, 45}}),
        curve({{420, 900, 60}, {560, 2500, 70}, {800, 700, 70}}, 200),
        curve({{1400, 3000, 350}}),
    };
    return all;
}

} // namespace

TEST(NearestChange, grading_again_behind_it_gives_that_code_and_before_it_the_present_one) {
    std::size_t byHeight = 0;
    std::size_t byCoelution = 0;
    for (const auto& signal : curves()) {
        for (const double coelution : {0.6, 1.25, 1.8}) {
            EngineSettings settings;
            settings.coelution = coelution;
            const auto grading = algo::sr_qaqc::grade(signal, settings);
            const auto change = nearestChange(grading, settings);
            if (!change)
                continue;
            double EngineSettings::*const field =
                change->setting == "height" ? &EngineSettings::heightCriteria : &EngineSettings::coelution;
            ++(change->setting == "height" ? byHeight : byCoelution);
            EngineSettings changed = settings;
            changed.*field = change->value;
            EXPECT_EQ(codeOf(signal, changed), change->quality);
            EXPECT_NE(change->quality, codeOf(signal, settings));
            EXPECT_EQ(change->upward, change->value > settings.*field);
            changed.*field += change->upward ? -0.01 : 0.01; // back towards the present one
            EXPECT_EQ(codeOf(signal, changed), codeOf(signal, settings));
        }
    }
    EXPECT_GT(byHeight, 2U);
    EXPECT_GT(byCoelution, 2U);
}

TEST(NearestChange, none_is_found_where_no_setting_changes_the_code) {
    // Two clean peaks: whatever the height, two stand, and their ratios lie far above every coelution.
    const auto grading = algo::sr_qaqc::grade(curve({{400, 2500, 60}, {800, 3000, 60}}), EngineSettings());
    ASSERT_EQ(grading.chromatogram->peaks().size(), 2U);
    EXPECT_FALSE(nearestChange(grading, EngineSettings()));
}

TEST(GradeReason, names_what_stands_what_fell_and_against_which_limits) {
    const EngineSettings settings;
    const auto level = algo::sr_qaqc::grade(curves()[0], settings).mean;
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
        const std::string reason = gradeReason(algo::sr_qaqc::grade(curves()[index], settings), settings);
        EXPECT_NE(reason.find(part), std::string::npos) << reason;
        EXPECT_EQ(reason.find('.', reason.size() - 2), reason.size() - 1) << reason;
    }
}

// The numbers are those of the English sentence, which the test above holds to the grading.
TEST(GradeReason, says_the_same_in_french_with_commas_and_leaves_no_english_word) {
    const std::vector<std::string> english{" peak", "stand", "with ", "would",
                                           " it ",  " and ", "fell",  " or "};
    for (const auto& signal : curves()) {
        for (const double coelution : {0.6, 1.25, 1.8}) {
            EngineSettings settings;
            settings.coelution = coelution;
            const auto grading = algo::sr_qaqc::grade(signal, settings);
            const auto digits = [](std::string text) {
                std::string kept;
                for (const char each : text)
                    kept += each >= '0' && each <= '9' ? std::string(1, each) : "";
                return kept;
            };
            const std::string french = gradeReason(grading, settings, gradereport::Language::french);
            EXPECT_EQ(digits(french), digits(gradeReason(grading, settings))) << french;
            EXPECT_EQ(french.find('.'), french.size() - 1) << french;
            for (const std::string& word : english)
                EXPECT_EQ(french.find(word), std::string::npos) << french;
        }
    }
    const std::string lone = gradeReason(algo::sr_qaqc::grade(curves()[1], EngineSettings()),
                                         EngineSettings(), gradereport::Language::french);
    EXPECT_NE(lone.find("son sommet reste sous 2 × le niveau moyen de "), std::string::npos) << lone;
    EXPECT_NE(lone.find(" ou moins, elle serait bonne."), std::string::npos) << lone;
}

TEST(Describe, the_record_repeats_what_the_engine_decided) {
    const EngineSettings settings;
    const auto grading = algo::sr_qaqc::grade(curves()[3], settings);
    const auto record = gradereport::describe(*curves()[3], grading, settings, gradereport::Curves::included);
    EXPECT_EQ(record.points, 1200U);
    EXPECT_EQ(record.gradedPoints, grading.even->size());
    ASSERT_EQ(record.peaks.size(), grading.chromatogram->peaks().size());
    EXPECT_EQ(record.removed.size() + record.peaks.size(), grading.candidates->peaks().size());
    EXPECT_EQ(grading.even->Y(record.peaks.at(0).top), record.peaks[0].y);
    EXPECT_EQ(record.raw.y.size(), 1200U);
    EXPECT_EQ(record.smoothed.x.front(), grading.even->X(0));
    const auto bare = gradereport::describe(*curves()[3], grading, settings, gradereport::Curves::leftOut);
    EXPECT_TRUE(bare.raw.x.empty() && bare.smoothed.x.empty());
}

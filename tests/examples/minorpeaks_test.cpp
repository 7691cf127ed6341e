#include "minorpeaks.h"

#include "enginetest.h"
#include "peakfilterminor.h"
#include "rockeval/channels.h"
#include "rockeval/signalreader.h"
#include "sourcerockqaqc/rawsignal.h"

#include <limits>

namespace {

using enginetest::Chromatogram;
using enginetest::Peak;
using Filter = algo::chromato::PeakFilterMinor<double, Values>;

Grading example(const std::string& name) {
    const auto channels =
        rockeval::toChannels(rockeval::readSignalFile(VORN_EXAMPLES "/" + name + ".S00").curve);
    return algo::sr_qaqc::grade<double, Values>(
        algo::sr_qaqc::rawSignal<double, Values>(channels.time.data(), channels.fid.data(),
                                                 static_cast<int>(channels.time.size())),
        Settings());
}

int qualityWithout(const std::string& name, double share) {
    return algo::sr_qaqc::qualityCode(*withoutMinorPeaks(example(name), Settings(), share));
}

/// Peaks that rise 4, 8 and 8 above their lower valley.
std::shared_ptr<const Chromatogram> threePeaks() {
    const std::shared_ptr<const enginetest::Signal> signal = enginetest::counted({1, 5, 2, 10, 3, 11, 4});
    const enginetest::Iterator begin = signal->begin();
    const std::vector<Peak> peaks{
        {begin, begin + 1, begin + 2}, {begin + 2, begin + 3, begin + 4}, {begin + 4, begin + 5, begin + 6}};
    return std::make_shared<Chromatogram>(peaks, signal);
}

std::vector<double> topsThatStay(double share) {
    const auto peaks = threePeaks();
    std::vector<double> tops;
    const auto left = Filter(*peaks, share).apply(peaks, nullptr);
    for (const Peak& peak : left->peaks()) {
        tops.push_back(peak.top()->y);
    }
    return tops;
}

} // namespace

TEST(PeakFilterMinor, keeps_what_rises_to_the_share_of_the_greatest_rise) {
    EXPECT_EQ(topsThatStay(0), (std::vector<double>{5, 10, 11}));
    EXPECT_EQ(topsThatStay(0.5), (std::vector<double>{5, 10, 11})) << "half is not below half";
    EXPECT_EQ(topsThatStay(0.51), (std::vector<double>{10, 11}));
    EXPECT_EQ(topsThatStay(1), (std::vector<double>{10, 11})) << "both are the highest";
}

TEST(PeakFilterMinor, refuses_what_is_no_share_and_takes_a_curve_without_peaks) {
    for (const double share : {-0.1, 1.1, std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_THROW(topsThatStay(share), enginetest::Failure) << share;
    }
    const auto none = std::make_shared<const Chromatogram>(std::vector<Peak>(), threePeaks()->signal());
    EXPECT_TRUE(Filter(*none, 1).apply(none, nullptr)->peaks().empty());
}

TEST(MinorPeaks, change_a_grade_where_they_alone_made_it) {
    // The tops of this one rise 1818 and 6109 above their lower valleys.
    EXPECT_EQ(algo::sr_qaqc::qualityCode(*example("double-unequal-01").chromatogram), 2);
    EXPECT_EQ(qualityWithout("double-unequal-01", 0.29), 2);
    EXPECT_EQ(qualityWithout("double-unequal-01", 0.30), 1);
    EXPECT_EQ(qualityWithout("double-clean-01", 0.5), 2);
    EXPECT_EQ(qualityWithout("four-peaks-01", 0.85), 2);
    EXPECT_EQ(qualityWithout("good-shoulder-01", 0), 1) << "the coelution filter still works behind it";
    EXPECT_EQ(qualityWithout("none-rise-01", 1), 0);
}

TEST(MinorPeaks, leave_the_stages_before_them_and_the_peaks_that_stay_as_they_were) {
    const Grading grading = example("double-unequal-01");
    const auto left = withoutMinorPeaks(grading, Settings(), 0.4);
    EXPECT_EQ(grading.late->peaks().size(), 2U);
    EXPECT_EQ(grading.chromatogram->peaks().size(), 2U);
    ASSERT_EQ(left->peaks().size(), 1U);
    EXPECT_EQ(left->peaks()[0].top()->x, grading.chromatogram->peaks()[1].top()->x);
    EXPECT_EQ(left->peaks()[0].left()->x, grading.chromatogram->peaks()[1].left()->x);
    EXPECT_EQ(left->peaks()[0].category, 1);
}

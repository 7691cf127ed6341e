#include "enginetest.h"
#include "temporaryfolder.h"

#include <cmath>
#include <sstream>

using namespace enginetest;
using namespace algo::sr_qaqc;
using Manager = SourceRockQAQCMgr<double, Values>;

namespace {

std::int32_t meanOf(const Values& y) {
    return detail::integerMean(*counted(y));
}

std::string exported(const Manager& manager) {
    std::ostringstream stream;
    manager.exportData(stream);
    return stream.str();
}

const auto good = curve({{100, 900, 20}});
const auto twoBells = curve({{95, 900, 12}, {150, 700, 12}});

} // namespace

TEST(Quality, three_peaks_read_as_flat_and_codes_beyond_have_no_word) {
    const std::vector<Bell> bells{{85, 900, 8}, {110, 800, 8}, {135, 700, 8}, {160, 600, 8}};
    const char* const words[] = {"", "good", "double", "flat", ""};
    for (int count = 0; count <= 4; ++count) {
        const auto result = grade<double, Values>(curve({bells.begin(), bells.begin() + count}), Settings());
        EXPECT_EQ(qualityCode(*result.chromatogram), count);
        EXPECT_STREQ(qualityText(count), words[count]);
    }
    EXPECT_RAISES((grade<double, Values>(std::make_shared<Signal>(0), Settings())), "Signal1D::at",
                  "core/signal1d.h", "try to get an index out of signal's data range; i=0; size=0");
}

TEST(IntegerMean, loses_the_fraction_at_every_step_and_divides_as_an_unsigned_number) {
    EXPECT_EQ(meanOf({1.9, 1.9, 1.9}), 1);         // 1, 2, 3
    EXPECT_EQ(meanOf({2.5, -0.7, 4}), 1);          // 2, 1, 5
    EXPECT_EQ(meanOf({7, 0.9999999999999999}), 4); // 7 + that is rounded to 8
    EXPECT_EQ(meanOf({-3, -1}), -2);
    EXPECT_EQ(meanOf({-1, -1, -2}), 0x55555554);         // (2^64 - 4) / 3
    EXPECT_EQ(meanOf({2e9, 2e9}), -1073741824);          // doesn't fit: -2^31; (2^64 - 2^31) / 2
    EXPECT_EQ(meanOf({2147483646.5, 0.75}), 1073741823); // the sum is 2147483646, not rounded up
    EXPECT_EQ(meanOf({std::nan("")}), INT32_MIN);
    EXPECT_EQ(meanOf({1e300}), INT32_MIN);
}

TEST(Manager, keeps_one_record_a_signal_and_updates_it_in_place) {
    const auto settings = std::make_shared<Settings>();
    Manager manager(settings);
    EXPECT_EQ(manager.analyse(good)->name(), ""); // and nothing is stored
    const auto record = manager.addAnalysis(good, "first");
    const auto other = manager.addAnalysis(twoBells, "other");
    EXPECT_EQ(manager.getQuality("first"), 1);
    settings->heightCriteria = 5;
    manager.update();
    EXPECT_EQ(manager.getQuality("first"), 3);
    EXPECT_EQ(manager.getQuality("other"), 2);
    EXPECT_EQ(record->chromatogram()->peaks().at(0).category, 3); // the old pointer sees the new peaks
    EXPECT_EQ(manager.addAnalysis(good, "renamed"), record);
    EXPECT_EQ(manager.getAnalyses([](const auto&) { return true; }).size(), 2U);
    EXPECT_EQ(manager.getAnalyses([](const auto& data) { return data.name() == "other"; }).at(0), other);
    EXPECT_RAISES(manager.getQuality("first"), "SourceRockQAQCMgr::getQuality", "sourcerockqaqc/srqaqcmngr.h",
                  "can not find the analysis with name first");
    const auto before = record->chromatogram();
    settings->sensitivity = 1;
    EXPECT_THROW(manager.addAnalysis(good, "failed"), algo::core::ErrorParameter);
    EXPECT_EQ(record->name(), "renamed");
    EXPECT_EQ(record->chromatogram(), before);
}

TEST(Export, samples_each_curve_behind_its_first_sixth) {
    Manager manager(std::make_shared<Settings>());
    EXPECT_EQ(exported(manager), "X=[]\ny=[]\n");
    const auto signal = curve({{300, 900, 60}}, 601); // abscissae 0 to 600
    manager.addAnalysis(signal, "curve");
    std::string row;
    for (std::uint64_t i = 100; i < 600; i += 25) {
        row += algo::core::toString(signal->Y(i)) + ",";
    }
    EXPECT_EQ(exported(manager), "X=[[" + row + "]\n]\ny=[1;]\n");
    manager.addAnalysis(twoBells, "curve"); // of two with one name, the first in memory answers
    const std::string labels = signal < twoBells ? "]\ny=[1;1;]\n" : "]\ny=[2;2;]\n";
    EXPECT_NE(exported(manager).find(labels), std::string::npos);
}

TEST(Export, rows_of_curves_without_a_range_end) {
    std::ostringstream stream;
    MachineLearningWriter<double, Values> writer(stream);
    writer.row(*signalOf({5, 5, 5}, {1, 2, 3}));
    EXPECT_EQ(stream.str(), "X=[[]\n");
    writer.row(*signalOf({1, std::nextafter(1.0, 2.0)}, {4, 4})); // the step is too small to arrive
    EXPECT_LE(stream.str().size(), 60U);
}

TEST(Export, the_file_holds_the_last_run_only) {
    const TemporaryFolder folder;
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(folder.path());
    Manager manager(std::make_shared<Settings>());
    manager.addAnalysis(good, "a");
    manager.exportData();
    Manager(nullptr).exportData();
    EXPECT_EQ(contentOf("dataSR.txt"), "X=[]\ny=[]\n");
    std::filesystem::remove("dataSR.txt");
    std::filesystem::create_directory("dataSR.txt"); // nothing can be written there, and nothing is said
    EXPECT_NO_THROW(manager.exportData());
    std::filesystem::current_path(before);
}

#include "enginetest.h"

#include <cmath>
#include <filesystem>
#include <fstream>
#include <sstream>

using namespace enginetest;
using namespace algo::sr_qaqc;
using Manager = SourceRockQAQCMgr<double, Values>;

namespace {

Grading<double, Values> graded(const SignalPointer& signal, const Settings& settings = {}) {
    return grade<double, Values>(signal, settings);
}
int quality(const SignalPointer& signal, const Settings& settings = {}) {
    return qualityCode(*graded(signal, settings).chromatogram);
}
std::int32_t meanOf(const Values& y) {
    return detail::integerMean(*counted(y));
}

std::string exported(const Manager& manager) {
    std::ostringstream stream;
    manager.exportData(stream);
    return stream.str();
}

const auto good = curve({{100, 900, 20}});
const auto shoulder = curve({{100, 900, 20}, {130, 300, 10}});
const auto twoBells = curve({{95, 900, 12}, {150, 700, 12}});

} // namespace

TEST(Quality, codes_of_whole_curves) {
    EXPECT_EQ(quality(curve({})), 0);
    EXPECT_EQ(quality(good), 1);
    EXPECT_EQ(quality(twoBells), 2);
    EXPECT_EQ(quality(curve({{95, 900, 9}, {125, 700, 9}, {155, 600, 9}})), 3); // three peaks read as flat
    EXPECT_EQ(quality(curve({{85, 900, 8}, {110, 800, 8}, {135, 700, 8}, {160, 600, 8}})), 4);
    EXPECT_EQ(quality(good, {0.5, 1.25, 5}), 3); // 910.09 stays below 5 * 187
    EXPECT_EQ(quality(good, {0.5, 1.25, std::nan("")}), 1);
    EXPECT_EQ(quality(shoulder), 1); // the ratio of the shoulder is 1.079, that of the top 4.145
    EXPECT_EQ(quality(shoulder, {0.5, 1, 2}), 2);
    EXPECT_EQ(quality(shoulder, {0.5, 4.2, 2}), 0);
    EXPECT_EQ(std::string(qualityText(1)) + qualityText(2) + qualityText(3), "gooddoubleflat");
    EXPECT_EQ(std::string(qualityText(0)) + qualityText(4), "");
}

TEST(Grading, thresholds_are_tenths_of_the_last_abscissa) {
    const Values shelf{2, 1, 2, 3, 3, 4, 5, 6, 7, 8, 9};
    EXPECT_EQ(graded(counted(shelf)).start.x, 4);   // 1 is not past a tenth of 10; the shelf is a minimum
    const auto farOut = graded(counted(shelf, 50)); // 51 is past 6, and 54 the cut instead of 59
    EXPECT_EQ(farOut.extracted->xValues(), Values({51, 52, 53}));
    EXPECT_EQ(farOut.early.size(), 1U); // the top at 51.7 lies before 51 * 1.1
    EXPECT_THROW(graded(counted({9, 8, 7, 6, 5, 4, 3, 2, 1, 0, 5}, 0.5)), Failure);
    EXPECT_TRUE(graded(counted({1, 2, 3, 4, 5, 6, 7, 8}, 10)).early.empty()); // no start
    EXPECT_RAISES(graded(std::make_shared<Signal>(0)), "Signal1D::at", "core/signal1d.h",
                  "try to get an index out of signal's data range; i=0; size=0");
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
    const auto folder = std::filesystem::temp_directory_path() / "vorn_export_test";
    const auto before = std::filesystem::current_path();
    std::filesystem::create_directories(folder);
    std::filesystem::current_path(folder);
    Manager manager(std::make_shared<Settings>());
    manager.addAnalysis(good, "a");
    manager.exportData();
    Manager(nullptr).exportData();
    std::ostringstream text;
    text << std::ifstream("dataSR.txt").rdbuf();
    EXPECT_EQ(text.str(), "X=[]\ny=[]\n");
    std::filesystem::remove("dataSR.txt");
    std::filesystem::create_directory("dataSR.txt"); // nothing can be written there, and nothing is said
    EXPECT_NO_THROW(manager.exportData());
    std::filesystem::current_path(before);
    std::filesystem::remove_all(folder);
}

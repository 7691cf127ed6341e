#include "filegrader.h"
#include "rockeval/resultreader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace {

struct Expected {
    std::string file;
    int quality = 0;
    std::string grade;
    std::vector<double> tops;
};

std::string examplePath(const std::string& name) {
    return std::string(VORN_EXAMPLES) + "/" + name;
}

std::vector<Expected> expectedGrades() {
    std::ifstream table(examplePath("expected-grades.csv"));
    std::vector<Expected> all;
    std::string line;
    std::getline(table, line); // the heading
    while (std::getline(table, line)) {
        std::istringstream cells(line);
        Expected expected;
        std::string quality;
        std::string tops;
        std::getline(cells, expected.file, ',');
        std::getline(cells, quality, ',');
        std::getline(cells, expected.grade, ',');
        std::getline(cells, tops, ',');
        expected.quality = std::stoi(quality);
        std::istringstream times(tops);
        for (double time = 0.0; times >> time;) {
            expected.tops.push_back(time);
        }
        all.push_back(expected);
    }
    return all;
}

grade::GradedFile graded(const std::string& name) {
    auto outcome = grade::gradeFile(examplePath(name), {}, gradereport::Curves::leftOut);
    if (const auto* failure = std::get_if<gradereport::FailureRecord>(&outcome)) {
        throw std::runtime_error(failure->error);
    }
    return std::get<grade::GradedFile>(outcome);
}

} // namespace

TEST(Examples, every_curve_has_the_grade_and_the_tops_it_was_built_for) {
    const auto all = expectedGrades();
    ASSERT_GE(all.size(), 24U);
    for (const Expected& expected : all) {
        const auto record = graded(expected.file).record;
        EXPECT_EQ(record.quality, expected.quality) << expected.file;
        EXPECT_EQ(record.grade, expected.grade) << expected.file;
        ASSERT_EQ(record.peaks.size(), expected.tops.size()) << expected.file;
        for (std::size_t i = 0; i < expected.tops.size(); ++i) {
            EXPECT_NEAR(record.peaks[i].x, expected.tops[i], 3.0) << expected.file;
        }
    }
}

TEST(Examples, every_raw_file_stands_in_the_table_of_expected_grades) {
    const auto all = expectedGrades();
    std::size_t rawFiles = 0;
    for (const auto& entry : std::filesystem::directory_iterator(VORN_EXAMPLES)) {
        const std::string suffix = entry.path().extension().string();
        rawFiles += suffix == ".S00" || suffix == ".s00" ? 1 : 0;
    }
    EXPECT_EQ(rawFiles, all.size());
}

TEST(Examples, the_main_top_agrees_with_the_result_table_beside_it) {
    std::size_t compared = 0;
    for (const auto& entry : std::filesystem::directory_iterator(VORN_EXAMPLES)) {
        if (entry.path().extension() != ".R00") {
            continue;
        }
        const auto results = rockeval::readResultsFile(entry.path());
        const auto peaks = graded(entry.path().stem().string() + ".S00").record.peaks;
        const auto lower = [](const auto& a, const auto& b) { return a.y < b.y; };
        const auto highest = std::max_element(peaks.begin(), peaks.end(), lower);
        ASSERT_NE(highest, peaks.end());
        EXPECT_EQ(highest->y, results.number("Results_1", "VMax_2").value()) << entry.path();
        EXPECT_NEAR(highest->x, 60.0 * results.number("Results_1", "Time_2").value(), 2.0) << entry.path();
        ++compared;
    }
    EXPECT_GE(compared, 4U);
}

TEST(Examples, missing_seconds_are_told_with_their_lines) {
    const auto warnings = graded("good-missing-seconds-01.S00").record.warnings;
    ASSERT_FALSE(warnings.empty());
    EXPECT_EQ(warnings.front().rfind("line ", 0), 0U) << warnings.front();
}

#include "samplerecord.h"

#include "gradereport/csvtable.h"

#include <gtest/gtest.h>

#include <cmath>
#include <sstream>
#include <string>
#include <vector>

using namespace gradereport;

namespace {

using Row = std::vector<std::string>;

/// Reads RFC 4180 letter by letter.
std::vector<Row> parsed(const std::string& text) {
    std::vector<Row> rows(1, Row(1));
    bool quoted = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool doubled = text.compare(i, 2, "\"\"") == 0;
        if (quoted && doubled) {
            rows.back().back() += '"';
            ++i;
        } else if (text[i] == '"') {
            EXPECT_TRUE(quoted || rows.back().back().empty()) << "quote inside a bare cell";
            quoted = !quoted;
        } else if (!quoted && text[i] == ',') {
            rows.back().emplace_back();
        } else if (!quoted && text.compare(i, 2, "\r\n") == 0) {
            rows.emplace_back(1);
            ++i;
        } else {
            EXPECT_TRUE(quoted || (text[i] != '\r' && text[i] != '\n')) << "bare line end";
            rows.back().back() += text[i];
        }
    }
    EXPECT_EQ(rows.back(), Row(1)) << "the last line is complete";
    rows.pop_back();
    return rows;
}

std::vector<Row> rowsOf(const GradeRecord& record) {
    std::ostringstream out;
    CsvTable(out, "1.2").add(record);
    return parsed(out.str());
}

constexpr std::size_t columnCount = 20;

} // namespace

TEST(CsvTable, a_grade_fills_its_columns) {
    const std::vector<Row> rows = rowsOf(sampleRecord());
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[0],
              (Row{"file",     "name",        "sha256",     "points", "graded_points", "start", "mean",
                   "quality",  "grade",       "peak_count", "top_x",  "top_y",         "peaks", "reason",
                   "warnings", "sensitivity", "coelution",  "height", "version",       "error"}));
    EXPECT_EQ(rows[1], (Row{"runs/a.S00",
                            "a.S00",
                            std::string(60, '0') + "beef",
                            "101",
                            "81",
                            "10.5",
                            "40",
                            "2",
                            "double",
                            "2",
                            "70.1",
                            "90",
                            "40:40.25:3;70.1:90:1",
                            "Two peaks stand.",
                            "1",
                            "0.5",
                            "1.25",
                            "2",
                            "1.2",
                            ""}));
}

TEST(CsvTable, a_failure_has_as_many_cells_as_the_header) {
    std::ostringstream out;
    CsvTable table(out, "1.2");
    table.addFailure({"runs\\b.S00", "No rows."});
    const std::vector<Row> rows = parsed(out.str());
    ASSERT_EQ(rows[1].size(), columnCount);
    EXPECT_EQ(rows[1][0], "runs\\b.S00");
    EXPECT_EQ(rows[1][1], "b.S00");
    EXPECT_EQ(rows[1][18], "1.2");
    EXPECT_EQ(rows[1][19], "No rows.");
}

TEST(CsvTable, text_is_never_a_formula_and_reads_back) {
    const std::vector<std::string> hostile{
        "=cmd|' /C calc'!A0", "+1",           "-1", "@SUM(A1)", "\t=1", "\r=1", "\n=1", "'q", "a,b",
        "say \"x\"",          "line\r\nbreak"};
    for (const std::string& name : hostile) {
        GradeRecord record = sampleRecord();
        record.name = name;
        record.reason = name;
        const std::vector<Row> rows = rowsOf(record);
        ASSERT_EQ(rows.size(), 2U) << name;
        ASSERT_EQ(rows[1].size(), columnCount) << name;
        for (const std::size_t column : {1U, 13U}) {
            std::string cell = rows[1][column];
            EXPECT_EQ(std::string("=+-@\t\r\n").find(cell.front()), std::string::npos) << name;
            if (cell.front() == '\'')
                cell.erase(0, 1);
            EXPECT_EQ(cell, name);
        }
    }
}

TEST(CsvTable, numbers_stay_numbers_and_missing_ones_are_empty) {
    GradeRecord record = sampleRecord();
    record.mean = -7;
    record.start = std::nan("");
    record.peaks = {{0, 1, 2, -1.5, -INFINITY, 3}};
    Row row = rowsOf(record)[1];
    EXPECT_EQ(row[5], "");
    EXPECT_EQ(row[6], "-7");
    EXPECT_EQ(row[10], "-1.5");
    EXPECT_EQ(row[11], "");
    EXPECT_EQ(row[12], "-1.5::3");
    record.peaks.clear();
    row = rowsOf(record)[1];
    EXPECT_EQ(row.size(), columnCount);
    EXPECT_EQ(row[9] + row[10] + row[11] + row[12], "0");
}

#include "samplerecord.h"

#include "gradereport/csvtable.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <sstream>
#include <string>

using namespace gradereport;

namespace {

std::string tableOf(const GradeRecord& record) {
    std::ostringstream out;
    CsvTable(out, "1.2").add(record);
    return out.str();
}

bool contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

} // namespace

TEST(CsvTable, a_grade_fills_its_columns) {
    EXPECT_EQ(tableOf(sampleRecord()),
              "file,name,sha256,points,graded_points,start,mean,quality,grade,peak_count,top_x,top_y,"
              "peaks,reason,warnings,sensitivity,coelution,height,version,error\r\n"
              "runs/a.S00,a.S00," +
                  sampleRecord().sha256 +
                  ",101,81,10.5,40,2,double,2,70.1,90,40:40.25:3;70.1:90:1,Two peaks stand.,1,"
                  "0.5,1.25,2,1.2,\r\n");
}

TEST(CsvTable, a_failure_has_as_many_cells_as_the_header) {
    std::ostringstream out;
    CsvTable(out, "1.2").addFailure({"runs\\b.S00", "No rows."});
    const std::string expected = "\r\nruns\\b.S00,b.S00" + std::string(17, ',') + "1.2,No rows.\r\n";
    EXPECT_TRUE(contains(out.str(), expected)) << out.str();
    const std::string header = out.str().substr(0, out.str().find('\r'));
    EXPECT_EQ(std::count(header.begin(), header.end(), ','),
              std::count(expected.begin(), expected.end(), ','));
}

TEST(CsvTable, text_is_never_a_formula_and_reads_back) {
    struct Case {
        std::string text, cell;
    };
    for (const Case& c :
         {Case{"=cmd|' /C calc'!A0", "'=cmd|' /C calc'!A0"}, Case{"+1", "'+1"}, Case{"-1", "'-1"},
          Case{"@SUM(A1)", "'@SUM(A1)"}, Case{"\t=1", "'\t=1"}, Case{"\r=1", "\"'\r=1\""},
          Case{"\n=1", "\"'\n=1\""}, Case{"'q", "''q"}, Case{"a,b", "\"a,b\""},
          Case{"say \"x\"", "\"say \"\"x\"\"\""}, Case{"line\r\nbreak", "\"line\r\nbreak\""},
          Case{"a\nb", "\"a\nb\""}, Case{"\xff", "\uFFFD"}}) {
        GradeRecord record = sampleRecord();
        record.name = record.reason = c.text;
        EXPECT_TRUE(contains(tableOf(record), "runs/a.S00," + c.cell + ",000")) << tableOf(record);
        EXPECT_TRUE(contains(tableOf(record), ":1," + c.cell + ",1,0.5")) << tableOf(record);
    }
}

TEST(CsvTable, numbers_stay_numbers_and_missing_ones_are_empty) {
    GradeRecord record = sampleRecord();
    record.mean = -7;
    record.start = std::nan("");
    record.peaks = {{0, 1, 2, -1.5, -INFINITY, 3}};
    EXPECT_TRUE(contains(tableOf(record), "beef,101,81,,-7,2,double,1,-1.5,,-1.5::3,Two"));
    record.peaks.clear();
    EXPECT_TRUE(contains(tableOf(record), ",double,0,,,,Two"));
}

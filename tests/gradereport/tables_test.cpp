// The outputs beside the page: values with commas, lines of JSON, and the table in a terminal.
#include "samplerecord.h"

#include "gradereport/csvtable.h"
#include "gradereport/jsonlinereader.h"
#include "gradereport/jsonlines.h"
#include "gradereport/texttable.h"

#include <gtest/gtest.h>
#include <rapidjson/document.h>

#include <algorithm>
#include <cmath>
#include <sstream>
#include <string>
#include <vector>

using namespace gradereport;

namespace {

/// What a table or the lines of JSON say of a grade or a failure.
template <class Output>
std::string written(const GradeRecord& record) {
    std::ostringstream out;
    Output(out, "1.2").add(record);
    return out.str();
}
template <class Output>
std::string written(const FailureRecord& failure) {
    std::ostringstream out;
    Output(out, "1.2").addFailure(failure);
    return out.str();
}

bool contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

GradeRecord named(const std::string& name, int quality) {
    GradeRecord record = sampleRecord();
    record.name = name;
    record.quality = quality;
    if (quality == 0)
        record.peaks.clear();
    if (quality == 5)
        record.reason += "\x1b[2J" + std::string(60, 'r');
    return record;
}

/// One file of each kind and two hostile names.
std::vector<std::string> linesOf(bool colour, std::size_t width) {
    std::stringstream text;
    TextTable table(text, colour, width);
    table.add(named("a.S00", 1));
    table.add(named("\u6f22\u5b57.S00", 2));
    table.add(named("e\u0301\x1b[31m\n.S00", 3));
    table.add(named(std::string(10000, 'n') + "7.S00", 0));
    table.add(named("f.S00", 5));
    table.addFailure({"runs/b\x1b]0;x\x07.S00", "\x1b[2J" + std::string(200, 'e')});
    table.finish();
    std::vector<std::string> lines;
    for (std::string line; std::getline(text, line);)
        lines.push_back(line);
    return lines;
}

std::string withoutColour(std::string line) {
    for (std::size_t start = line.find('\x1b'); start != std::string::npos; start = line.find('\x1b'))
        line.erase(start, line.find('m', start) - start + 1);
    return line;
}

} // namespace

TEST(CsvTable, a_grade_fills_its_columns) {
    EXPECT_EQ(written<CsvTable>(sampleRecord()),
              "file,name,sha256,points,graded_points,start,mean,quality,grade,peak_count,top_x,top_y,"
              "peaks,reason,warnings,sensitivity,coelution,height,version,error\r\n"
              "runs/a.S00,a.S00," +
                  sampleRecord().sha256 +
                  ",101,81,10.5,40,2,double,2,70.1,90,40:40.25:3;70.1:90:1,Two peaks stand.,1,"
                  "0.5,1.25,2,1.2,\r\n");
}

TEST(CsvTable, a_failure_has_as_many_cells_as_the_header) {
    const std::string table = written<CsvTable>(FailureRecord{"runs\\b.S00", "No rows."});
    const std::string failure = "runs\\b.S00,b.S00" + std::string(17, ',') + "1.2,No rows.\r\n";
    const std::string header = table.substr(0, table.find('\n') + 1);
    EXPECT_EQ(table, header + failure);
    EXPECT_EQ(std::count(header.begin(), header.end(), ','), std::count(failure.begin(), failure.end(), ','));
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
        const std::string table = written<CsvTable>(record);
        EXPECT_TRUE(contains(table, "runs/a.S00," + c.cell + ",000")) << table;
        EXPECT_TRUE(contains(table, ":1," + c.cell + ",1,0.5")) << table;
    }
}

TEST(CsvTable, numbers_stay_numbers_and_missing_ones_are_empty) {
    GradeRecord record = sampleRecord();
    record.mean = -7;
    record.start = std::nan("");
    record.peaks = {{0, 1, 2, -1.5, -INFINITY, 3}};
    EXPECT_TRUE(contains(written<CsvTable>(record), "beef,101,81,,-7,2,double,1,-1.5,,-1.5::3,Two"));
    record.peaks.clear();
    EXPECT_TRUE(contains(written<CsvTable>(record), ",double,0,,,,Two"));
}

TEST(JsonLines, a_grade_has_every_field_in_order) {
    EXPECT_EQ(written<JsonLines>(sampleRecord()),
              R"({"file":"runs/a.S00","name":"a.S00","sha256":")" + sampleRecord().sha256 +
                  R"(","points":101,"graded_points":81,"start":10.5,"mean":40,"quality":2,)"
                  R"("grade":"double","reason":"Two peaks stand.","peaks":[)"
                  R"({"left":1,"top":30,"right":40,"x":40,"y":40.25,"category":3},)"
                  R"({"left":40,"top":60,"right":70,"x":70.1,"y":90,"category":1}],)"
                  R"("warnings":["Line 3: no number."],)"
                  R"("settings":{"sensitivity":0.5,"coelution":1.25,"height":2},"version":"1.2"})"
                  "\n");
}

TEST(JsonLines, hostile_text_and_numbers_still_give_one_valid_line) {
    GradeRecord record = sampleRecord();
    record.name = "\xff\"\n\x01\xe2\x82.S00";
    record.warnings = {"\xc0\xaf", ""};
    record.start = std::nan("");
    record.peaks[0].y = -INFINITY;
    const std::string line = written<JsonLines>(record);
    EXPECT_EQ(line.find('\n'), line.size() - 1);
    rapidjson::Document object;
    object.Parse<rapidjson::kParseValidateEncodingFlag>(line.c_str());
    ASSERT_FALSE(object.HasParseError()) << line;
    EXPECT_EQ(object.MemberCount(), 14U);
    EXPECT_STREQ(object["name"].GetString(), "\uFFFD\"\n\x01\uFFFD\uFFFD.S00");
    EXPECT_TRUE(object["start"].IsNull());
    EXPECT_TRUE(object["peaks"][0]["y"].IsNull());
    EXPECT_EQ(object["peaks"][1]["x"].GetDouble(), 70.1);
    EXPECT_STREQ(object["warnings"][0].GetString(), "\uFFFD\uFFFD");
}

TEST(JsonLineReader, what_was_written_reads_back_to_the_same_bits) {
    GradeRecord record = sampleRecord();
    record.settings = {0.1 + 0.2, 1e-17, 123456789.123456789};
    record.file = "\xff\"\n\xc3\xa9.S00";
    const GradeLine read = readJsonLine(written<JsonLines>(record));
    EXPECT_EQ(read.kind, LineKind::grade);
    EXPECT_EQ(read.sha256, record.sha256);
    EXPECT_EQ(read.settings.sensitivity, record.settings.sensitivity);
    EXPECT_EQ(read.settings.coelution, record.settings.coelution);
    EXPECT_EQ(read.settings.height, record.settings.height);
    EXPECT_EQ(read.version, "1.2");

    EXPECT_EQ(readJsonLine(written<JsonLines>(FailureRecord{"\"\\.S00", "There is no such file."})).kind,
              LineKind::failure);
}

TEST(JsonLineReader, anything_else_is_told_from_a_grade) {
    const std::string line = written<JsonLines>(sampleRecord());
    const std::string whole = line.substr(0, line.size() - 1);
    const auto with = [&whole](const std::string& from, const std::string& to) {
        std::string changed = whole;
        return changed.replace(changed.find(from), from.size(), to);
    };
    ASSERT_EQ(readJsonLine(whole).kind, LineKind::grade);
    EXPECT_EQ(readJsonLine(with("\"peaks\":", "\"later\":{\"deep\":[null]},\"peaks\":")).kind,
              LineKind::grade);
    const std::string wrong[] = {
        "",
        "null",
        "{}",
        whole + whole,
        whole + std::string("\0x", 2),
        std::string(1000000, '['),
        with("\"sha256\":\"", "\"sha256\":\"0"),
        with(sampleRecord().sha256, std::string(64, 'G')),
        with("\"sensitivity\":0.5", "\"sensitivity\":null"),
        with("\"height\":2", "\"height\":1e999"),
        with("\"settings\":{", "\"settings\":[],\"x\":{"),
        with("\"quality\":2", "\"quality\":\"2\""),
        with("\"version\":\"1.2\"", "\"version\":1.2"),
        with("\"file\":\"runs", "\"file\":\"\xff"),
    };
    for (const std::string& text : wrong) {
        EXPECT_EQ(readJsonLine(text).kind, LineKind::other) << text.substr(0, 400);
    }
    for (std::size_t length = 0; length < whole.size(); ++length) {
        EXPECT_EQ(readJsonLine(whole.substr(0, length)).kind, LineKind::other);
        EXPECT_TRUE(beginsJsonLine(whole.substr(0, length)));
    }
    for (const std::string& text : {with("{\"file", "[\"file"), std::string("x"), whole + '\0', line + "{"}) {
        EXPECT_FALSE(beginsJsonLine(text)) << text;
    }
}

TEST(TextTable, is_aligned_cut_to_the_width_but_for_errors_and_free_of_escape_sequences) {
    const std::string expected[] = {
        "file                          grade    peaks     top, s      height   start, s  reason",
        "a.S00                         good         2       70.1        90.0       10.5  Two peaks stand.",
        "漢字.S00                      double       2       70.1        90.0       10.5  Two peaks stand.",
        "e\u0301␛[31m␊.S00                   flat         2       70.1        90.0       10.5  Two peaks "
        "stand.",
        "nnnnnnnnnnnnnn…nnnnnnnn7.S00  – 0          0          –           –       10.5  Two peaks stand.",
        "f.S00                         – 5          2       70.1        90.0       10.5  Two peaks "
        "stand.␛[2Jrrrrr…",
        "b␛]0;x␇.S00                   failed   ␛[2J" + std::string(200, 'e'),
        "5 graded: 1 good, 1 double, 1 flat, 1 without a peak, 1 other; 1 failed"};
    const std::vector<std::string> lines = linesOf(false, 106);
    ASSERT_EQ(lines.size(), std::size(expected));
    for (std::size_t i = 0; i < lines.size(); ++i)
        EXPECT_EQ(lines[i], expected[i]);
    EXPECT_EQ(linesOf(false, 0)[5].find("…"), std::string::npos);
    for (const std::string& narrow : linesOf(false, 80))
        EXPECT_FALSE(contains(narrow, "Two peaks"));
    std::ostringstream text;
    TextTable table(text, false, 0);
    table.add(named("a.S00", 1));
    table.finish();
    EXPECT_TRUE(contains(text.str(), "\n1 graded: 1 good\n"));
}

TEST(TextTable, colour_changes_nothing_but_colour) {
    const std::vector<std::string> plain = linesOf(false, 120);
    const std::vector<std::string> coloured = linesOf(true, 120);
    ASSERT_EQ(plain.size(), coloured.size());
    EXPECT_TRUE(contains(coloured[1], "\x1b[32mgood\x1b[0m"));
    for (std::size_t i = 0; i < plain.size(); ++i)
        EXPECT_EQ(withoutColour(coloured[i]), plain[i]);
}

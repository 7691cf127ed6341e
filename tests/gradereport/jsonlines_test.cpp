#include "samplerecord.h"

#include "gradereport/jsonlinereader.h"
#include "gradereport/jsonlines.h"

#include <rapidjson/document.h>

#include <gtest/gtest.h>

#include <cmath>
#include <sstream>
#include <string>

using namespace gradereport;

namespace {

/// The object of a line, which must be valid JSON and UTF-8.
rapidjson::Document parsed(const std::string& line) {
    rapidjson::Document document;
    document.Parse<rapidjson::kParseValidateEncodingFlag>(line.c_str());
    EXPECT_FALSE(document.HasParseError()) << line;
    return document;
}

std::string lineOf(const GradeRecord& record) {
    std::ostringstream out;
    JsonLines(out, "1.2").add(record);
    return out.str();
}

} // namespace

TEST(JsonLines, a_grade_has_every_field_in_order) {
    EXPECT_EQ(lineOf(sampleRecord()),
              R"({"file":"runs/a.S00","name":"a.S00","sha256":")" + sampleRecord().sha256 +
                  R"(","points":101,"graded_points":81,"start":10.5,"mean":40,"quality":2,)"
                  R"("grade":"double","reason":"Two peaks stand.","peaks":[)"
                  R"({"left":1,"top":30,"right":40,"x":40,"y":40.25,"category":3},)"
                  R"({"left":40,"top":60,"right":70,"x":70.1,"y":90,"category":1}],)"
                  R"("warnings":["Line 3: no number."],)"
                  R"("settings":{"sensitivity":0.5,"coelution":1.25,"height":2},"version":"1.2"})"
                  "\n");
}

TEST(JsonLines, a_failure_has_file_error_and_version_that_read_back) {
    std::ostringstream out;
    JsonLines(out, "1.2").addFailure({"b \"quoted\"\\.S00", "No rows in b.S00: check the file."});
    const auto object = parsed(out.str());
    EXPECT_EQ(object.MemberCount(), 3U);
    EXPECT_STREQ(object["file"].GetString(), "b \"quoted\"\\.S00");
    EXPECT_STREQ(object["error"].GetString(), "No rows in b.S00: check the file.");
    EXPECT_STREQ(object["version"].GetString(), "1.2");
}

TEST(JsonLines, hostile_text_and_numbers_still_give_one_valid_line) {
    GradeRecord record = sampleRecord();
    record.name = "\xff\"\n\x01\xe2\x82.S00";
    record.warnings = {"\xc0\xaf", ""};
    record.start = std::nan("");
    record.peaks[0].y = -INFINITY;
    const std::string line = lineOf(record);
    EXPECT_EQ(line.find('\n'), line.size() - 1);
    const auto object = parsed(line);
    EXPECT_EQ(object.MemberCount(), parsed(lineOf(sampleRecord())).MemberCount());
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
    const GradeLine read = readJsonLine(lineOf(record));
    EXPECT_EQ(read.kind, LineKind::grade);
    EXPECT_EQ(read.sha256, record.sha256);
    EXPECT_EQ(read.settings.sensitivity, record.settings.sensitivity);
    EXPECT_EQ(read.settings.coelution, record.settings.coelution);
    EXPECT_EQ(read.settings.height, record.settings.height);
    EXPECT_EQ(read.version, "1.2");

    std::ostringstream failed;
    JsonLines(failed, "1.2").addFailure({"a.S00", "a.S00: there is no such file."});
    EXPECT_EQ(readJsonLine(failed.str()).kind, LineKind::failure);
}

TEST(JsonLineReader, anything_else_is_told_from_a_grade) {
    const std::string line = lineOf(sampleRecord());
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

#include "samplerecord.h"

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

#include "samplerecord.h"

#include "gradereport/jsonlines.h"

#include <rapidjson/reader.h>

#include <gtest/gtest.h>

#include <cmath>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

using namespace gradereport;

namespace {

using Fields = std::vector<std::pair<std::string, std::string>>;

/// Reads an object into "path = text" pairs in order; numbers keep the digits of the file.
class Flattener : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, Flattener> {
public:
    Fields fields;

    bool Null() { return value("null"); }
    bool RawNumber(const char* text, rapidjson::SizeType size, bool) { return value({text, size}); }
    bool String(const char* text, rapidjson::SizeType size, bool) {
        return value('"' + std::string(text, size));
    }
    bool Key(const char* text, rapidjson::SizeType size, bool) {
        m_levels.back().name = '.' + std::string(text, size);
        return true;
    }
    bool StartObject() { return open(false); }
    bool EndObject(rapidjson::SizeType) { return close(); }
    bool StartArray() { return open(true); }
    bool EndArray(rapidjson::SizeType) { return close(); }

private:
    struct Level {
        bool isArray;
        int index;
        std::string name;
    };

    void nextElement() {
        if (!m_levels.empty() && m_levels.back().isArray)
            m_levels.back().name = '[' + std::to_string(m_levels.back().index++) + ']';
    }
    bool open(bool isArray) {
        nextElement();
        m_levels.push_back({isArray, 0, ""});
        return true;
    }
    bool close() {
        m_levels.pop_back();
        return true;
    }
    bool value(const std::string& text) {
        nextElement();
        std::string path;
        for (const Level& level : m_levels)
            path += level.name;
        fields.emplace_back(path, text);
        return true;
    }

    std::vector<Level> m_levels;
};

Fields fieldsOf(const std::string& line) {
    rapidjson::Reader reader;
    rapidjson::StringStream stream(line.c_str());
    Flattener flattener;
    reader.Parse<rapidjson::kParseNumbersAsStringsFlag | rapidjson::kParseValidateEncodingFlag>(stream,
                                                                                                flattener);
    EXPECT_FALSE(reader.HasParseError()) << line;
    return flattener.fields;
}

std::string lineOf(const GradeRecord& record) {
    std::ostringstream out;
    JsonLines(out, "1.2").add(record);
    return out.str();
}

} // namespace

TEST(JsonLines, a_grade_has_every_field_in_order) {
    const Fields expected{{".file", "\"runs/a.S00"},
                          {".name", "\"a.S00"},
                          {".sha256", '"' + std::string(60, '0') + "beef"},
                          {".points", "101"},
                          {".graded_points", "81"},
                          {".start", "10.5"},
                          {".mean", "40"},
                          {".quality", "2"},
                          {".grade", "\"double"},
                          {".reason", "\"Two peaks stand."},
                          {".peaks[0].left", "1"},
                          {".peaks[0].top", "30"},
                          {".peaks[0].right", "40"},
                          {".peaks[0].x", "40"},
                          {".peaks[0].y", "40.25"},
                          {".peaks[0].category", "3"},
                          {".peaks[1].left", "40"},
                          {".peaks[1].top", "60"},
                          {".peaks[1].right", "70"},
                          {".peaks[1].x", "70.1"},
                          {".peaks[1].y", "90"},
                          {".peaks[1].category", "1"},
                          {".warnings[0]", "\"Line 3: no number."},
                          {".settings.sensitivity", "0.5"},
                          {".settings.coelution", "1.25"},
                          {".settings.height", "2"},
                          {".version", "\"1.2"}};
    EXPECT_EQ(fieldsOf(lineOf(sampleRecord())), expected);
}

TEST(JsonLines, a_failure_has_file_error_and_version) {
    std::ostringstream out;
    JsonLines lines(out, "1.2");
    lines.addFailure({"b \"quoted\"\\.S00", "No rows in b.S00: check the file."});
    const Fields expected{{".file", "\"b \"quoted\"\\.S00"},
                          {".error", "\"No rows in b.S00: check the file."},
                          {".version", "\"1.2"}};
    EXPECT_EQ(fieldsOf(out.str()), expected);
}

TEST(JsonLines, hostile_text_and_numbers_still_give_one_valid_line) {
    GradeRecord record = sampleRecord();
    record.name = "\xff\"\n\x01\xe2\x82.S00";
    record.warnings = {"\xc0\xaf", ""};
    record.start = std::nan("");
    record.peaks[0].y = -INFINITY;
    const std::string line = lineOf(record);
    EXPECT_EQ(line.find('\n'), line.size() - 1);
    const Fields fields = fieldsOf(line);
    ASSERT_EQ(fields.size(), 28U);
    EXPECT_EQ(fields[1].second, "\"\uFFFD\"\n\x01\uFFFD\uFFFD.S00");
    EXPECT_EQ(fields[5].second, "null");
    EXPECT_EQ(fields[14].second, "null");
    EXPECT_EQ(fields[22].second, "\"\uFFFD\uFFFD");
}

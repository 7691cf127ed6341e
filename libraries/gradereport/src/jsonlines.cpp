#include "gradereport/jsonlines.h"

#include "gradereport/shortestnumber.h"
#include "gradereport/utf8text.h"

#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <cmath>
#include <ostream>
#include <utility>

namespace gradereport {

namespace {

/// Writes the members of one object by kind of value.
class ObjectWriter {
public:
    void begin(const char* key) {
        m_json.Key(key);
        begin();
    }
    void begin() { m_json.StartObject(); }
    void end() { m_json.EndObject(); }
    void beginArray(const char* key) {
        m_json.Key(key);
        m_json.StartArray();
    }
    void endArray() { m_json.EndArray(); }

    void text(const char* key, const std::string& value) {
        m_json.Key(key);
        text(value);
    }
    void text(const std::string& value) {
        const std::string valid = validUtf8(value);
        m_json.String(valid.data(), static_cast<rapidjson::SizeType>(valid.size()));
    }
    void count(const char* key, std::size_t value) {
        m_json.Key(key);
        m_json.Uint64(value);
    }
    void integer(const char* key, int value) {
        m_json.Key(key);
        m_json.Int(value);
    }
    void number(const char* key, double value) {
        m_json.Key(key);
        if (!std::isfinite(value)) {
            m_json.Null();
            return;
        }
        const std::string digits = shortestNumber(value);
        m_json.RawValue(digits.data(), digits.size(), rapidjson::kNumberType);
    }

    /// With its line feed in one piece, so that a line can't be parted from it.
    void writeLine(std::ostream& out) {
        m_buffer.Put('\n');
        out.write(m_buffer.GetString(), static_cast<std::streamsize>(m_buffer.GetSize()));
    }

private:
    rapidjson::StringBuffer m_buffer;
    rapidjson::Writer<rapidjson::StringBuffer> m_json{m_buffer};
};

void writePeaks(ObjectWriter& json, const std::vector<ReportedPeak>& peaks) {
    json.beginArray("peaks");
    for (const ReportedPeak& peak : peaks) {
        json.begin();
        json.count("left", peak.left);
        json.count("top", peak.top);
        json.count("right", peak.right);
        json.number("x", peak.x);
        json.number("y", peak.y);
        json.integer("category", peak.category);
        json.end();
    }
    json.endArray();
}

void writeWarnings(ObjectWriter& json, const std::vector<std::string>& warnings) {
    json.beginArray("warnings");
    for (const std::string& warning : warnings)
        json.text(warning);
    json.endArray();
}

void writeSettings(ObjectWriter& json, const GradeSettings& settings) {
    json.begin("settings");
    json.number("sensitivity", settings.sensitivity);
    json.number("coelution", settings.coelution);
    json.number("height", settings.height);
    json.end();
}

} // namespace

JsonLines::JsonLines(std::ostream& out, std::string version) : m_out(out), m_version(std::move(version)) {}

void JsonLines::add(const GradeRecord& record) {
    ObjectWriter json;
    json.begin();
    json.text("file", record.file);
    json.text("name", record.name);
    json.text("sha256", record.sha256);
    json.count("points", record.points);
    json.count("graded_points", record.gradedPoints);
    json.number("start", record.start);
    json.integer("mean", record.mean);
    json.integer("quality", record.quality);
    json.text("grade", record.grade);
    json.text("reason", record.reason);
    writePeaks(json, record.peaks);
    writeWarnings(json, record.warnings);
    writeSettings(json, record.settings);
    json.text("version", m_version);
    json.end();
    json.writeLine(m_out);
}

void JsonLines::addFailure(const FailureRecord& failure) {
    ObjectWriter json;
    json.begin();
    json.text("file", failure.file);
    json.text("error", failure.error);
    json.text("version", m_version);
    json.end();
    json.writeLine(m_out);
}

} // namespace gradereport

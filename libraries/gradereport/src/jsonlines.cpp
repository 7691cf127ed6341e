#include "gradereport/jsonlines.h"

#include "jsonobject.h"

#include <utility>

namespace gradereport {

namespace {

void writePeaks(JsonLine& json, const std::vector<ReportedPeak>& peaks) {
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

void writeWarnings(JsonLine& json, const std::vector<std::string>& warnings) {
    json.beginArray("warnings");
    for (const std::string& warning : warnings)
        json.text(warning);
    json.endArray();
}

} // namespace

JsonLines::JsonLines(std::ostream& out, std::string version) : m_out(out), m_version(std::move(version)) {}

void JsonLines::add(const GradeRecord& record) {
    JsonLine json;
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
    json.settings(record.settings);
    json.text("version", m_version);
    json.end();
    json.writeLine(m_out);
}

void JsonLines::addFailure(const FailureRecord& failure) {
    JsonLine json;
    json.begin();
    json.text("file", failure.file);
    json.text("error", failure.error);
    json.text("version", m_version);
    json.end();
    json.writeLine(m_out);
}

} // namespace gradereport

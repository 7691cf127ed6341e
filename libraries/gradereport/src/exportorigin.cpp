#include "gradereport/exportorigin.h"

#include "jsonobject.h"

#include <filesystem>

namespace gradereport {

namespace {

void writeText(JsonPage& json, const char* key, const std::optional<std::string>& text) {
    if (text) {
        json.text(key, *text);
    } else {
        json.null(key);
    }
}

void writeInput(JsonPage& json, const OriginInput& input, bool graded) {
    json.begin();
    json.text("name", input.name);
    if (input.table) {
        json.text("table", *input.table);
    }
    writeText(json, "file", input.file);
    writeText(json, "sha256", input.sha256);
    if (graded && input.quality) {
        json.integer("quality", *input.quality);
    } else if (graded) {
        json.null("quality");
    }
    json.end();
}

} // namespace

void writeOrigin(std::ostream& out, const ExportOrigin& origin) {
    JsonPage json;
    json.begin();
    json.text("version", origin.version);
    if (origin.project) {
        json.text("project", *origin.project);
    }
    if (origin.settings) {
        json.settings(*origin.settings);
    }
    json.beginArray("inputs");
    for (const OriginInput& input : origin.inputs) {
        writeInput(json, input, origin.settings.has_value());
    }
    json.endArray();
    json.end();
    json.writeLine(out);
}

std::string originPath(const std::string& exported) {
    return std::filesystem::path(exported).replace_extension(".origin.json").string();
}

} // namespace gradereport

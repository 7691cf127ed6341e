#include "gradereport/jsonlinereader.h"

#include <rapidjson/document.h>

#include <algorithm>
#include <optional>

namespace gradereport {

namespace {

using rapidjson::Value;

const Value* member(const Value& object, const char* key) {
    const auto found = object.FindMember(key);
    return found == object.MemberEnd() ? nullptr : &found->value;
}

std::optional<std::string> textAt(const Value& object, const char* key) {
    const Value* value = member(object, key);
    if (value == nullptr || !value->IsString()) {
        return std::nullopt;
    }
    return std::string(value->GetString(), value->GetStringLength());
}

std::optional<double> numberAt(const Value& object, const char* key) {
    const Value* value = member(object, key);
    if (value == nullptr || !value->IsNumber()) {
        return std::nullopt;
    }
    return value->GetDouble();
}

std::optional<GradeSettings> settingsAt(const Value& object, const char* key) {
    const Value* value = member(object, key);
    if (value == nullptr || !value->IsObject()) {
        return std::nullopt;
    }
    const auto sensitivity = numberAt(*value, "sensitivity");
    const auto coelution = numberAt(*value, "coelution");
    const auto height = numberAt(*value, "height");
    if (!sensitivity || !coelution || !height) {
        return std::nullopt;
    }
    return GradeSettings{*sensitivity, *coelution, *height};
}

bool isDigest(const std::string& text) {
    constexpr std::size_t digits = 64;
    return text.size() == digits && text.find_first_not_of("0123456789abcdef") == std::string::npos;
}

GradeLine interpreted(const Value& object) {
    const auto version = textAt(object, "version");
    if (!version || !textAt(object, "file")) {
        return {};
    }
    if (textAt(object, "error")) {
        return {LineKind::failure, {}, {}, {}};
    }
    const auto sha256 = textAt(object, "sha256");
    const auto settings = settingsAt(object, "settings");
    if (!sha256 || !isDigest(*sha256) || !settings || !numberAt(object, "quality")) {
        return {};
    }
    return {LineKind::grade, *sha256, *settings, *version};
}

} // namespace

GradeLine readJsonLine(std::string_view line) {
    // The parser takes a zero byte for the end, whatever stands behind it.
    if (line.find('\0') != std::string_view::npos) {
        return {};
    }
    // Not recursive, for brackets may be nested as deep as a line is long.
    constexpr unsigned flags = rapidjson::kParseFullPrecisionFlag | rapidjson::kParseIterativeFlag |
                               rapidjson::kParseValidateEncodingFlag;
    rapidjson::Document document;
    document.Parse<flags>(line.data(), line.size());
    if (document.HasParseError() || !document.IsObject()) {
        return {};
    }
    return interpreted(document);
}

bool beginsJsonLine(std::string_view text) {
    constexpr std::string_view beginning = R"({"file":")";
    const std::size_t common = std::min(text.size(), beginning.size());
    return text.substr(0, common) == beginning.substr(0, common) &&
           text.find_first_of(std::string_view("\0\n", 2)) == std::string_view::npos;
}

} // namespace gradereport

#pragma once

#include "gradereport/graderecord.h"
#include "gradereport/shortestnumber.h"
#include "gradereport/utf8text.h"

#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <cmath>
#include <cstddef>
#include <ostream>
#include <string>

namespace gradereport {

/// Writes the members of one object by kind of value. `Form` is one of RapidJSON's writers: for a line, or
/// for eyes.
template <class Form>
class JsonObject {
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
    void null(const char* key) {
        m_json.Key(key);
        m_json.Null();
    }
    void settings(const GradeSettings& settings) {
        begin("settings");
        number("sensitivity", settings.sensitivity);
        number("coelution", settings.coelution);
        number("height", settings.height);
        end();
    }

    /// With its line feed in one piece, so that a line can't be parted from it.
    void writeLine(std::ostream& out) {
        m_buffer.Put('\n');
        out.write(m_buffer.GetString(), static_cast<std::streamsize>(m_buffer.GetSize()));
    }

private:
    rapidjson::StringBuffer m_buffer;
    Form m_json{m_buffer};
};

using JsonLine = JsonObject<rapidjson::Writer<rapidjson::StringBuffer>>;
using JsonPage = JsonObject<rapidjson::PrettyWriter<rapidjson::StringBuffer>>;

} // namespace gradereport

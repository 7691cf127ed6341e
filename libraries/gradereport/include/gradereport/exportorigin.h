#pragma once

#include "gradereport/graderecord.h"

#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

namespace gradereport {

/// One of the things that an export was made of. Text is UTF-8; what isn't known is left out here and null in
/// the file.
struct OriginInput {
    std::string name;
    std::optional<std::string> table;  ///< file name of its export, where one file tells of several
    std::optional<std::string> file;   ///< path of the raw file
    std::optional<std::string> sha256; ///< digest of the file's bytes, 64 hexadecimal digits
    std::optional<int> quality;        ///< quality code with the settings
};

/// What an export rests on whose form has no room to say it.
struct ExportOrigin {
    std::string version;
    std::optional<std::string> project;    ///< where it came from
    std::optional<GradeSettings> settings; ///< none where nothing was graded
    std::vector<OriginInput> inputs;
};

/// Writes it as one JSON object, laid out for eyes. The quality codes stand where there are settings.
void writeOrigin(std::ostream& out, const ExportOrigin& origin);

/// The file it goes to beside an exported file: "table.csv", "table.origin.json".
[[nodiscard]] std::string originPath(const std::string& exported);

} // namespace gradereport

#pragma once

#include "gradereport/language.h"
#include "pathlist.h"
#include "sourcerockqaqc/srqaqcsettings.h"

#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

namespace grade {

enum class Format { table, csv, json };

/// What the command line asks for.
struct Options {
    algo::sr_qaqc::SourceRockQAQCSettings<double, std::vector<double>> settings;
    Format format = Format::table;
    gradereport::Language language = gradereport::Language::english; ///< of sentences and of the report
    std::optional<std::string> report;                               ///< file of the HTML report
    std::optional<std::string> machineLearning;                      ///< file of the matrix and labels
    std::optional<std::string> skipDone;                             ///< file of an earlier run's JSON lines
    std::vector<std::string> paths;                                  ///< at least one
    PathEnd listedPathEnd = PathEnd::line; ///< in standard input, where a path is "-"
};

/// What came of reading the command line: options to work with, or the status to end with.
struct ParsedCommandLine {
    std::optional<Options> options;
    int status = 0; ///< where there are no options: 0 after help or version, 2 after wrong usage
};

/// Reads the command line; help, version and what is wrong with it go to the streams.
[[nodiscard]] ParsedCommandLine parseCommandLine(int argc, const char* const* argv, std::ostream& out,
                                                 std::ostream& err);

/// The program's version, which stands in every output.
[[nodiscard]] const char* version();

} // namespace grade

#include "options.h"

#include <CLI/CLI.hpp>

#include <cmath>
#include <map>

namespace grade {

namespace {

constexpr int wrongUsage = 2;

/// A finite number of 0 or more.
std::string notBelowZero(const std::string& text) {
    double value = 0.0;
    const bool valid = CLI::detail::lexical_cast(text, value) && std::isfinite(value) && value >= 0.0;
    return valid ? std::string() : "must be a number of 0 or more, not " + text;
}

/// A number strictly between 0 and 1, also once the engine has rounded it to six digits.
std::string insideUnitInterval(const std::string& text) {
    double value = 0.0;
    const bool valid = CLI::detail::lexical_cast(text, value) && value >= 0.001 && value <= 0.999;
    return valid ? std::string() : "must be a number from 0.001 to 0.999, not " + text;
}

void describe(CLI::App& app, Options& options) {
    static const std::map<std::string, Format> formats = {
        {"table", Format::table}, {"csv", Format::csv}, {"json", Format::json}};
    auto& settings = options.settings;
    app.add_option("--sensitivity", settings.sensitivity,
                   "share of the average peak width used for smoothing")
        ->check(insideUnitInterval, "0.001 to 0.999")
        ->capture_default_str();
    app.add_option("--coelution", settings.coelution, "higher removes more coeluted peaks")
        ->check(notBelowZero, "0 or more")
        ->capture_default_str();
    app.add_option("--height", settings.heightCriteria, "factor on the mean level that a good peak reaches")
        ->check(notBelowZero, "0 or more")
        ->capture_default_str();
    app.add_option("--format", options.format, "table, csv or json (one object a line)")
        ->transform(CLI::CheckedTransformer(formats, CLI::ignore_case).description("table|csv|json"));
    static const std::map<std::string, gradereport::Language> languages = {
        {"en", gradereport::Language::english}, {"fr", gradereport::Language::french}};
    app.add_option("--language", options.language,
                   "of the report, and of reasons, warnings and failures in all outputs")
        ->transform(CLI::CheckedTransformer(languages, CLI::ignore_case).description("en|fr"));
    auto* report =
        app.add_option("--report", options.report, "write an HTML report with all curves to this file")
            ->type_name("FILE");
    auto* machineLearning = app.add_option("--ml", options.machineLearning,
                                           "write curves and grades for machine learning to this file")
                                ->type_name("FILE");
    app.add_option(
           "--skip-done", options.skipDone,
           "leave out files whose bytes were graded with these settings and this version in FILE, the "
           "JSON lines of an earlier run; output may be appended to FILE")
        ->type_name("FILE")
        ->excludes(report)
        ->excludes(machineLearning);
    app.add_flag_callback(
        "-0,--null", [&options] { options.listedPathEnd = PathEnd::zero; },
        "paths on standard input end in a zero byte, as find -print0 writes them");
    app.add_option("PATH", options.paths,
                   "raw files, or folders that are searched for .S00; - reads paths from "
                   "standard input, one a line")
        ->required()
        ->type_name("");
    app.set_version_flag("--version", std::string("vorn-grade ") + version());
    app.footer("Files are graded in natural order, each once. With --format json and - as the only path, "
               "they are\ngraded in the order of the input instead, each line written before the next path "
               "is read.\n\n"
               "Exit status: 0 all graded, 1 some file could not be read, 2 wrong usage.");
}

} // namespace

ParsedCommandLine parseCommandLine(int argc, const char* const* argv, std::ostream& out, std::ostream& err) {
    Options options;
    CLI::App app(
        "Grades raw pyrolysis curves: one clean peak (good), two (double), or nothing that stands out "
        "(flat).",
        "vorn-grade");
    describe(app, options);
    try {
        app.parse(argc, argv);
        if (options.skipDone && options.format != Format::json) {
            throw CLI::ValidationError("--skip-done", "needs --format json");
        }
    } catch (const CLI::ParseError& error) {
        return {std::nullopt, app.exit(error, out, err) == 0 ? 0 : wrongUsage};
    }
    return {options, 0};
}

const char* version() {
    return VORN_VERSION;
}

} // namespace grade

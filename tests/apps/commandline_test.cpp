#include "options.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

struct Parsed {
    grade::ParsedCommandLine result;
    std::string out;
    std::string err;
};

Parsed parse(std::vector<const char*> arguments) {
    arguments.insert(arguments.begin(), "vorn-grade");
    std::ostringstream out;
    std::ostringstream err;
    auto result = grade::parseCommandLine(static_cast<int>(arguments.size()), arguments.data(), out, err);
    return {std::move(result), out.str(), err.str()};
}

} // namespace

TEST(CommandLine, settings_have_the_usual_defaults_and_can_be_given) {
    const auto defaults = parse({"curves"}).result.options;
    ASSERT_TRUE(defaults);
    EXPECT_EQ(defaults->settings.sensitivity, 0.5);
    EXPECT_EQ(defaults->settings.coelution, 1.25);
    EXPECT_EQ(defaults->settings.heightCriteria, 2.0);
    EXPECT_EQ(defaults->format, grade::Format::table);

    const auto given = parse({"--sensitivity", "0.25", "--coelution=0", "--height", "3.5", "--format", "JSON",
                              "--report", "r.html", "--ml", "m.txt", "a", "-"})
                           .result.options;
    ASSERT_TRUE(given);
    EXPECT_EQ(given->settings.sensitivity, 0.25);
    EXPECT_EQ(given->settings.coelution, 0.0);
    EXPECT_EQ(given->settings.heightCriteria, 3.5);
    EXPECT_EQ(given->format, grade::Format::json);
    EXPECT_EQ(given->report, "r.html");
    EXPECT_EQ(given->machineLearning, "m.txt");
    EXPECT_EQ(given->paths, (std::vector<std::string>{"a", "-"}));
}

TEST(CommandLine, wrong_usage_ends_with_2_and_a_text_on_the_error_stream) {
    const std::vector<std::vector<const char*>> wrong = {
        {},
        {"--nonsense", "a"},
        {"--sensitivity", "0", "a"},
        {"--sensitivity", "1", "a"},
        {"--sensitivity", "0.9999999", "a"},
        {"--sensitivity", "nan", "a"},
        {"--coelution", "-1", "a"},
        {"--coelution", "inf", "a"},
        {"--height", "nan", "a"},
        {"--height", "2x", "a"},
        {"--height", "", "a"},
        {"--format", "xml", "a"},
        {"--language", "de", "a"},
        {"--report"},
        {"--skip-done", "done", "a"},
        {"--skip-done", "done", "--format", "json", "--report", "r.html", "a"},
        {"--skip-done", "done", "--format", "json", "--ml", "m.txt", "a"},
    };
    for (const auto& arguments : wrong) {
        const Parsed parsed = parse(arguments);
        EXPECT_FALSE(parsed.result.options);
        EXPECT_EQ(parsed.result.status, 2);
        EXPECT_FALSE(parsed.err.empty());
        EXPECT_TRUE(parsed.out.empty());
    }
}

TEST(CommandLine, help_and_version_end_with_0) {
    const Parsed help = parse({"--help"});
    EXPECT_EQ(help.result.status, 0);
    EXPECT_FALSE(help.result.options);
    for (const char* piece :
         {"--sensitivity", "--coelution", "--height", "--report", "--ml", "Exit status"}) {
        EXPECT_NE(help.out.find(piece), std::string::npos) << piece;
    }
    EXPECT_EQ(parse({"--version"}).out, std::string("vorn-grade ") + grade::version() + "\n");
}

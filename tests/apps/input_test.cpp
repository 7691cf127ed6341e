#include "digest.h"
#include "gradereport/naturalorder.h"
#include "inputfiles.h"
#include "options.h"
#include "temporaryfolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <sstream>

namespace {

using Paths = std::vector<std::string>;

struct Parsed {
    grade::ParsedCommandLine result;
    std::string out;
    std::string err;
};

/// As from a shell that knows no quotes.
Parsed parse(const std::string& line) {
    std::istringstream stream("vorn-grade " + line);
    const Paths words{std::istream_iterator<std::string>(stream), {}};
    std::vector<const char*> arguments;
    for (const std::string& word : words) {
        arguments.push_back(word.c_str());
    }
    std::ostringstream out;
    std::ostringstream err;
    auto result = grade::parseCommandLine(static_cast<int>(words.size()), arguments.data(), out, err);
    return {std::move(result), out.str(), err.str()};
}

grade::InputFiles findInputFiles(const Paths& paths, const std::string& input = {},
                                 grade::PathEnd end = grade::PathEnd::line) {
    std::istringstream stream(input);
    grade::PathList listed(stream, end);
    return grade::findInputFiles(paths, listed);
}

} // namespace

TEST(CommandLine, what_is_given_reaches_the_options) {
    const auto given = parse("--sensitivity 0.25 --coelution=0 --height 3.5 --format JSON --report r.html "
                             "--ml m.txt a -")
                           .result.options;
    ASSERT_TRUE(given);
    EXPECT_EQ(given->settings.sensitivity, 0.25);
    EXPECT_EQ(given->settings.coelution, 0.0);
    EXPECT_EQ(given->settings.heightCriteria, 3.5);
    EXPECT_EQ(given->format, grade::Format::json);
    EXPECT_EQ(given->report, "r.html");
    EXPECT_EQ(given->machineLearning, "m.txt");
    EXPECT_EQ(given->paths, (Paths{"a", "-"}));
}

TEST(CommandLine, wrong_usage_ends_with_2_and_a_text_on_the_error_stream_and_help_with_0) {
    for (const char* arguments :
         {"", "--nonsense a", "--sensitivity 0 a", "--sensitivity 1 a", "--sensitivity 0.9999999 a",
          "--sensitivity nan a", "--coelution -1 a", "--coelution inf a", "--height nan a", "--height 2x a",
          "--format xml a", "--language de a", "--report", "--skip-done done a",
          "--skip-done done --format json --report r.html a",
          "--skip-done done --format json --ml m.txt a"}) {
        const Parsed parsed = parse(arguments);
        EXPECT_FALSE(parsed.result.options) << arguments;
        EXPECT_EQ(parsed.result.status, 2);
        EXPECT_FALSE(parsed.err.empty());
        EXPECT_TRUE(parsed.out.empty());
    }
    const Parsed help = parse("--help");
    EXPECT_EQ(help.result.status, 0);
    EXPECT_FALSE(help.result.options);
    EXPECT_EQ(parse("--version").out, std::string("vorn-grade ") + grade::version() + "\n");
}

TEST(NaturalOrder, numbers_sort_by_value_and_letters_without_case) {
    Paths names = {"b1", "a10", "A9", "a009", "a9", "a", "a9x", "a18446744073709551617", "", "a9.5"};
    std::sort(names.begin(), names.end(), gradereport::naturallyLess);
    EXPECT_EQ(names,
              (Paths{"", "a", "A9", "a009", "a9", "a9.5", "a9x", "a10", "a18446744073709551617", "b1"}));
}

TEST(InputFiles, a_folder_stands_for_its_raw_signals_in_natural_order) {
    const TemporaryFolder folder;
    for (const char* name :
         {"run10.S00", "run2.s00", "run2.R00", "notes.txt", "deep/er/run1.S00", "x.S00.bak"}) {
        folder.write(name, "x");
    }
    std::filesystem::create_directories(folder.path("empty/folder.S00"));
    std::filesystem::create_directory_symlink(folder.path(), folder.path("deep/loop"));
    const auto found =
        findInputFiles({folder.path(), folder.path("run10.S00"), folder.path("empty"), "missing.txt"});
    EXPECT_EQ(found.files, (Paths{folder.path("deep/er/run1.S00"), folder.path("run2.s00"),
                                  folder.path("run10.S00"), "missing.txt"}));
    ASSERT_EQ(found.failures.size(), 1U) << "any other path stands for itself";
    EXPECT_NE(found.failures.front().error.find("no raw signal"), std::string::npos);
    const auto french = grade::filesAt(folder.path("empty"), gradereport::Language::french).failures;
    EXPECT_NE(french.at(0).error.find("aucun signal brut"), std::string::npos);
}

TEST(InputFiles, a_dash_reads_paths_from_standard_input) {
    const TemporaryFolder folder;
    const std::string inside = folder.write("a b.S00", "x");
    EXPECT_EQ(findInputFiles({"-"}, folder.path() + "\r\n\nother.S00\n-").files,
              (Paths{"-", inside, "other.S00"}))
        << "inside the list a dash is a file name";
}

TEST(InputFiles, a_list_with_zero_bytes_is_read_as_one_only_when_told) {
    const std::string list("a\r\nb.S00\0\0c d.S00", 17);
    EXPECT_EQ(findInputFiles({"-"}, list, grade::PathEnd::zero).files, (Paths{"a\r\nb.S00", "c d.S00"}));
    const auto untold = findInputFiles({"-"}, list);
    EXPECT_EQ(untold.files, Paths{"a"});
    ASSERT_EQ(untold.failures.size(), 1U) << "the first of the paths must not stand for all";
    EXPECT_NE(untold.failures.front().error.find("--null"), std::string::npos);
}

TEST(Digest, agrees_with_the_published_test_vector) {
    EXPECT_EQ(grade::sha256("abc"), "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
}

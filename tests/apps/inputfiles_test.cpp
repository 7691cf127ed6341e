#include "digest.h"
#include "gradereport/naturalorder.h"
#include "inputfiles.h"
#include "temporaryfolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

namespace {

using grade::InputFiles;
using grade::PathEnd;
using grade::PathList;
using gradereport::naturallyLess;

InputFiles findInputFiles(const std::vector<std::string>& paths, const std::string& input = {},
                          PathEnd end = PathEnd::line) {
    std::istringstream stream(input);
    PathList listed(stream, end);
    return grade::findInputFiles(paths, listed);
}

} // namespace

TEST(NaturalOrder, numbers_sort_by_value_and_letters_without_case) {
    std::vector<std::string> names = {"b1", "a10", "A9", "a009", "a9", "a", "a9x", "a18446744073709551617",
                                      "",   "a9.5"};
    std::sort(names.begin(), names.end(), gradereport::naturallyLess);
    EXPECT_EQ(names, (std::vector<std::string>{"", "a", "A9", "a009", "a9", "a9.5", "a9x", "a10",
                                               "a18446744073709551617", "b1"}));
    for (const std::string& a : names) {
        EXPECT_FALSE(gradereport::naturallyLess(a, a));
    }
}

TEST(InputFiles, a_folder_stands_for_its_raw_signals_in_natural_order) {
    const TemporaryFolder folder;
    for (const char* name :
         {"run10.S00", "run2.s00", "run2.R00", "notes.txt", "deep/er/run1.S00", "x.S00.bak"}) {
        folder.write(name, "x");
    }
    std::filesystem::create_directory(folder.path("folder.S00"));
    std::filesystem::create_directory_symlink(folder.path(), folder.path("deep/loop"));

    const InputFiles found = findInputFiles({folder.path(), folder.path("run10.S00")});
    EXPECT_EQ(found.files, (std::vector<std::string>{folder.path("deep/er/run1.S00"), folder.path("run2.s00"),
                                                     folder.path("run10.S00")}));
    EXPECT_TRUE(found.failures.empty());
}

TEST(InputFiles, an_empty_folder_is_a_failure_and_any_other_path_stands_for_itself) {
    const TemporaryFolder folder;
    const InputFiles found = findInputFiles({folder.path(), folder.path("missing.txt")});
    ASSERT_EQ(found.failures.size(), 1U);
    EXPECT_NE(found.failures.front().error.find("no raw signal"), std::string::npos);
    const InputFiles french = grade::filesAt(folder.path(), gradereport::Language::french);
    EXPECT_NE(french.failures.front().error.find("aucun signal brut"), std::string::npos);
    EXPECT_EQ(found.files, std::vector<std::string>{folder.path("missing.txt")});
}

TEST(InputFiles, a_dash_reads_paths_from_standard_input) {
    const TemporaryFolder folder;
    folder.write("a b.S00", "x");
    const InputFiles found = findInputFiles({"-"}, folder.path() + "\r\n\nother.S00\n-");
    EXPECT_EQ(found.files.size(), 3U);
    EXPECT_EQ(std::count(found.files.begin(), found.files.end(), folder.path("a b.S00")), 1);
    EXPECT_EQ(std::count(found.files.begin(), found.files.end(), "-"), 1)
        << "inside the list it is a file name";
}

TEST(InputFiles, a_list_with_zero_bytes_is_read_as_one_only_when_told) {
    const std::string list("a\r\nb.S00\0\0c d.S00", 17);
    const auto files = findInputFiles({"-"}, list, PathEnd::zero).files;
    EXPECT_EQ(files, (std::vector<std::string>{"a\r\nb.S00", "c d.S00"}));

    const InputFiles untold = findInputFiles({"-"}, list);
    EXPECT_EQ(untold.files, std::vector<std::string>{"a"});
    ASSERT_EQ(untold.failures.size(), 1U) << "the first of the paths must not stand for all";
    EXPECT_NE(untold.failures.front().error.find("--null"), std::string::npos);
}

TEST(Digest, agrees_with_the_published_test_vectors) {
    EXPECT_EQ(grade::sha256(""), "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
    EXPECT_EQ(grade::sha256("abc"), "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
}

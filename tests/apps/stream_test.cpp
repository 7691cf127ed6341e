#include "shell.h"

#include <gtest/gtest.h>

#include <algorithm>

TEST(Stream, each_line_comes_before_the_next_path_is_given) {
    const TemporaryFolder folder;
    const ShellResult result = shell(folder, R"sh(
        mkdir 'a b'; cp "$examples/good-clean-01.S00" 'a b/é.S00'
        coproc grader { vorn-grade --format json -; }
        for path in 'a b/é.S00' missing.S00 'a b/é.S00'; do
            printf '%s\r\n\n' "$path" >&"${grader[1]}"
            read -r -t 20 line <&"${grader[0]}" || exit 77
            echo "$line"
        done
        end=${grader[1]}; exec {end}>&-
        wait "$grader_PID"
    )sh");
    EXPECT_EQ(result.status, 1) << "one path is missing; 77: a line did not come\n" << result.err;
    EXPECT_EQ(std::count(result.out.begin(), result.out.end(), '\n'), 3);
    const std::string named = "{\"file\":\"a b/é.S00\",\"name\":\"é.S00\",";
    EXPECT_EQ(result.out.rfind(named, 0), 0U);
    EXPECT_NE(result.out.find("\n{\"file\":\"missing.S00\",\"error\":"), std::string::npos);
    EXPECT_NE(result.out.find('\n' + named), std::string::npos) << "a path given again is graded again";
}

TEST(Stream, memory_does_not_grow_with_the_number_of_paths) {
    const TemporaryFolder folder;
    // 30,000 paths of 3,000 bytes would take 90 MB; the limit is for all that is mapped.
    const ShellResult result = shell(folder, R"sh(
        (ulimit -v 64000; vorn-grade --version) >/dev/null || exit 88
        yes "$(printf '%03000d' 0)" | head -n 30000 | (ulimit -v 64000; vorn-grade --format json -) | wc -l
    )sh");
    if (result.status == 88) {
        GTEST_SKIP() << "the grader can't start in little address space, as under the sanitizers";
    }
    EXPECT_EQ(result.out, "30000\n") << result.err;
}

TEST(Stream, an_endless_list_ends_when_nobody_takes_the_lines) {
    const TemporaryFolder folder;
    EXPECT_EQ(shell(folder, "yes missing.S00 | timeout 20 vorn-grade --format json - >/dev/full").status, 1);
}

TEST(Stream, a_list_that_breaks_off_is_told) {
    const TemporaryFolder folder;
    for (const char* format : {"json", "csv"}) {
        const auto result = shell(folder, std::string("vorn-grade - </ --format ") + format);
        EXPECT_EQ(result.status, 1);
        EXPECT_NE(result.err.find("standard input"), std::string::npos);
    }
}

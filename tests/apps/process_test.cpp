#include "temporaryfolder.h"

#include <gtest/gtest.h>

#include <sys/wait.h>

#include <algorithm>
#include <cstdlib>

namespace {

/// What a script said and how it ended.
struct Result {
    int status = 0; ///< exit status, -1 where it was killed
    std::string out;
    std::string err;
};

auto lineCount(const std::string& text) {
    return std::count(text.begin(), text.end(), '\n');
}

bool startsWith(const std::string& text, const std::string& start) {
    return text.rfind(start, 0) == 0;
}

bool contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

/// A folder of its own in which bash runs scripts. They find the grader as `vorn-grade` and the example
/// curves in `$examples`; a home is for what keeps files of its own there.
class Grader : public testing::Test {
protected:
    Result run(const std::string& script) const {
        const std::string file =
            folder.write("script", "export LC_ALL=C PATH=\"" VORN_GRADE_FOLDER
                                   ":$PATH\" examples=\"" VORN_EXAMPLES "\" HOME=\"" +
                                       folder.path() + "\"; cd \"$HOME\" || exit 99\n" + script + "\n");
        const int ended = std::system(
            ("bash \"" + file + "\" >\"" + folder.path("out") + "\" 2>\"" + folder.path("err") + '"')
                .c_str());
        return {WIFEXITED(ended) ? WEXITSTATUS(ended) : -1, content("out"), content("err")};
    }
    Result skipping(const std::string& arguments) const {
        return run("vorn-grade --format json --skip-done " + arguments);
    }
    [[nodiscard]] std::string content(const std::string& file) const { return contentOf(folder.path(file)); }

    const TemporaryFolder folder;
};

/// `good`, `double` and `flat` are curves; done.jsonl holds the grade of the first and a failure.
class SkipDone : public Grader {
protected:
    SkipDone() {
        run(R"sh(for curve in good-clean double-clean flat-broad; do cp "$examples/$curve-01.S00" "${curve%-*}"; done
                 vorn-grade --format json good missing >done.jsonl)sh");
        done = content("done.jsonl");
    }
    std::string done;
};

} // namespace

TEST_F(Grader, each_line_comes_before_the_next_path_is_given) {
    const auto result = run(R"sh(
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
    EXPECT_EQ(lineCount(result.out), 3);
    const std::string named = "{\"file\":\"a b/é.S00\",\"name\":\"é.S00\",";
    EXPECT_TRUE(startsWith(result.out, named));
    EXPECT_TRUE(contains(result.out, "\n{\"file\":\"missing.S00\",\"error\":"));
    EXPECT_TRUE(contains(result.out, '\n' + named)) << "a path given again is graded again";
}

TEST_F(Grader, memory_does_not_grow_with_the_number_of_paths) {
    // 30,000 paths of 3,000 bytes would take 90 MB; the limit is for all that is mapped.
    const auto result = run(R"sh(
        (ulimit -v 64000; vorn-grade --version) >/dev/null || exit 88
        yes "$(printf '%03000d' 0)" | head -n 30000 | (ulimit -v 64000; vorn-grade --format json -) | wc -l
    )sh");
    if (result.status == 88) {
        GTEST_SKIP() << "the grader can't start in little address space, as under the sanitizers";
    }
    EXPECT_EQ(result.out, "30000\n") << result.err;
}

TEST_F(Grader, an_endless_list_ends_when_nobody_takes_the_lines_and_one_that_breaks_off_is_told) {
    EXPECT_EQ(run("yes missing.S00 | timeout 20 vorn-grade --format json - >/dev/full").status, 1);
    for (const char* format : {"json", "csv"}) {
        const auto result = run(std::string("vorn-grade - </ --format ") + format);
        EXPECT_EQ(result.status, 1);
        EXPECT_TRUE(contains(result.err, "standard input"));
    }
}

TEST_F(Grader, several_processes_give_the_bytes_of_one_and_a_killed_one_is_repeated_without_the_rest) {
    if (run("parallel --version 2>&1 | grep -q '^GNU parallel'").status != 0) {
        GTEST_SKIP() << "GNU parallel is not installed (package parallel)";
    }
    run(R"sh(mkdir 'les données'; cp "$examples"/*.[Ss]00 'les données'
             find 'les données' -iname '*.S00' | sort >paths; echo "no'such  curve.S00" >>paths
             split -l 4 -d -a 4 --additional-suffix=.paths paths shard-
             vorn-grade --format json - <paths >whole)sh");
    ASSERT_GE(lineCount(content("whole")), 25);
    const auto list = run("parallel --keep-order --pipe -N 3 vorn-grade --format json - <paths");
    EXPECT_EQ(list.status, 1) << "one of the processes has a path that can't be read\n" << list.err;
    EXPECT_TRUE(list.out == content("whole")) << list.err;

    const auto killed = run(R"sh(
        mkfifo fifo; vorn-grade --format json - <fifo >shard-0001.jsonl & grader=$!
        exec {hold}>fifo; head -n 2 shard-0001.paths >&"$hold"
        for ((i = 0; i < 400; ++i)); do [ "$(wc -l <shard-0001.jsonl)" -eq 2 ] && break; sleep 0.05; done
        kill -9 $grader; wait $grader; [ $? -eq 137 ] || exit 99
        truncate -s -40 shard-0001.jsonl # as if it had been stopped inside of a write
        parallel 'vorn-grade --format json --skip-done {.}.jsonl - <{} >>{.}.jsonl' ::: shard-*.paths)sh");
    EXPECT_EQ(killed.status, 1);
    EXPECT_TRUE(contains(killed.err, "Left out as done: 1 file that shard-0001.jsonl")) << killed.err;
    EXPECT_EQ(run("sort shard-*.jsonl").out, run("sort whole").out);
}

TEST_F(SkipDone, the_bytes_count_whatever_their_name_by_the_same_settings_and_version) {
    const auto result =
        run("cp good renamed; vorn-grade --format json --skip-done done.jsonl good renamed flat");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(lineCount(result.out), 1);
    EXPECT_TRUE(startsWith(result.out, R"({"file":"flat",)"));
    EXPECT_TRUE(contains(result.err, ": 2 files")) << result.err;
    for (const char* arguments : {"--sensitivity 0.3", "--coelution 1.2500000000000002", "--height 1"}) {
        EXPECT_EQ(lineCount(skipping("done.jsonl good " + std::string(arguments)).out), 1) << arguments;
    }
    const auto failed = skipping("done.jsonl missing");
    EXPECT_EQ(failed.status, 1);
    EXPECT_EQ(lineCount(failed.out), 1) << "a failure is tried again";
    EXPECT_EQ(lineCount(run("sed 's/\"version\":\"/&9/' done.jsonl >other\n"
                            "vorn-grade --format json --skip-done other good")
                            .out),
              1);
    EXPECT_EQ(lineCount(run("echo >>good; vorn-grade --format json --skip-done done.jsonl good").out), 1);
}

TEST_F(SkipDone, a_file_that_is_missing_or_empty_holds_nothing) {
    const auto missing = skipping("none.jsonl good");
    EXPECT_EQ(missing.status, 0);
    EXPECT_EQ(lineCount(missing.out), 1);
    EXPECT_TRUE(startsWith(missing.err, "none.jsonl: there is no such file yet"));
    EXPECT_EQ(skipping("/dev/null good").err, "");
}

TEST_F(SkipDone, a_line_of_anything_else_is_refused_by_file_and_line) {
    const std::string torn = done.substr(0, done.find('\n') / 2);
    const std::string huge(5U << 20U, 'x');
    const std::pair<std::string, int> hostile[] = {
        {done + "\n", 3},
        {done + "{}\n" + done, 3},
        {torn + done, 1}, // glued by a run that was not told to skip what is done
        {done + std::string("\0\xff\x1b[2J", 6), 3},
        {done + torn + std::string(4096, '\0'), 3},
        {"\x89PNG\r\n\x1a\n", 1},
        {done + "{\"file\":\"" + huge, 3},
        {huge, 1},
    };
    for (const auto& [text, line] : hostile) {
        folder.write("hostile", text);
        const auto result = skipping("hostile flat >>hostile");
        EXPECT_EQ(result.status, 2);
        EXPECT_TRUE(startsWith(result.err, "hostile, line " + std::to_string(line) + ": ")) << result.err;
        EXPECT_TRUE(content("hostile") == text) << "a file that may be another's must not be touched";
    }
    for (const char* file : {".", "/dev/zero", "good/done.jsonl"}) {
        const auto result = skipping(std::string(file) + " flat");
        EXPECT_EQ(result.status, 2) << file;
        EXPECT_TRUE(startsWith(result.err, file)) << result.err;
    }
}

TEST_F(SkipDone, a_torn_last_line_is_cut_off_where_lines_are_appended) {
    for (const std::string& end : {std::string("{"), done.substr(0, 100), done.substr(0, done.find('\n'))}) {
        folder.write("torn.jsonl", done + end);
        const auto elsewhere = skipping("torn.jsonl good flat");
        EXPECT_EQ(elsewhere.status, 0);
        EXPECT_TRUE(contains(elsewhere.err, "torn.jsonl, line 3: "));
        EXPECT_EQ(content("torn.jsonl"), done + end) << "it is read only";
        run("ln -sf torn.jsonl link; vorn-grade --format json --skip-done link - </dev/null >>torn.jsonl");
        EXPECT_EQ(content("torn.jsonl"), done) << "a run without paths mends the file";
        folder.write("torn.jsonl", done + end);
        skipping("torn.jsonl good flat >>torn.jsonl");
        EXPECT_EQ(content("torn.jsonl"), done + elsewhere.out);
    }
}

TEST_F(SkipDone, the_file_is_not_written_over_and_not_by_two) {
    const auto over = skipping("done.jsonl good 1<>done.jsonl");
    EXPECT_EQ(over.status, 2);
    EXPECT_TRUE(contains(over.err, ">>")) << over.err;
    const auto two = run(R"sh(
        mkfifo paths; vorn-grade --format json --skip-done done.jsonl - <paths >>done.jsonl 2>/dev/null &
        exec {hold}>paths; echo flat >&"$hold"
        for ((i = 0; i < 400; ++i)); do grep -q '"file":"flat"' done.jsonl && break; sleep 0.05; done
        vorn-grade --format json --skip-done done.jsonl double >>done.jsonl; echo $?
        exec {hold}>&-; wait
        vorn-grade --format json --skip-done done.jsonl double >>done.jsonl; echo $?
    )sh");
    EXPECT_EQ(two.out, "2\n0\n") << two.err;
    EXPECT_TRUE(contains(two.err, "another vorn-grade"));
    EXPECT_EQ(lineCount(content("done.jsonl")), 4);
}

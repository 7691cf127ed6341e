#include "shell.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

auto lineCount(const std::string& text) {
    return std::count(text.begin(), text.end(), '\n');
}

/// `good`, `double` and `flat` are curves; done.jsonl holds the grade of the first and a failure.
class SkipDone : public testing::Test {
protected:
    SkipDone() {
        run(R"sh(for curve in good-clean double-clean flat-broad; do cp "$examples/$curve-01.S00" "${curve%-*}"; done
                 vorn-grade --format json good missing >done.jsonl)sh");
    }

    ShellResult run(const std::string& script) const { return shell(m_folder, script); }
    [[nodiscard]] std::string content(const std::string& file) const {
        return contentOf(m_folder.path(file));
    }
    void write(const std::string& file, const std::string& text) const { m_folder.write(file, text); }

private:
    TemporaryFolder m_folder;
};

} // namespace

TEST_F(SkipDone, the_bytes_count_whatever_their_name) {
    const auto result =
        run("cp good renamed; vorn-grade --format json --skip-done done.jsonl good renamed flat");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(lineCount(result.out), 1);
    EXPECT_EQ(result.out.rfind(R"({"file":"flat",)", 0), 0U);
    EXPECT_NE(result.err.find(": 2 files"), std::string::npos) << result.err;

    EXPECT_EQ(lineCount(run("echo >>good; vorn-grade --format json --skip-done done.jsonl good").out), 1)
        << "changed since";
}

TEST_F(SkipDone, a_failure_or_a_grade_by_other_settings_or_another_version_does_not_count) {
    for (const char* arguments : {"--sensitivity 0.3", "--coelution 1.2500000000000002", "--height 1"}) {
        const auto result =
            run("vorn-grade --format json --skip-done done.jsonl good " + std::string(arguments));
        EXPECT_EQ(lineCount(result.out), 1) << arguments;
    }
    EXPECT_EQ(lineCount(run(R"sh(sed -i 's/"version":"/&9/' done.jsonl
                                 vorn-grade --format json --skip-done done.jsonl good)sh")
                            .out),
              1);
    const auto failed = run("vorn-grade --format json --skip-done done.jsonl missing");
    EXPECT_EQ(failed.status, 1);
    EXPECT_EQ(lineCount(failed.out), 1);
}

TEST_F(SkipDone, a_file_that_is_missing_or_empty_holds_nothing) {
    const auto missing = run("vorn-grade --format json --skip-done none.jsonl good");
    EXPECT_EQ(missing.status, 0);
    EXPECT_EQ(lineCount(missing.out), 1);
    EXPECT_EQ(missing.err.rfind("none.jsonl: there is no such file yet", 0), 0U);
    EXPECT_EQ(run("vorn-grade --format json --skip-done /dev/null good").err, "");
}

TEST_F(SkipDone, a_line_of_anything_else_is_refused_by_file_and_line) {
    const std::string whole = content("done.jsonl");
    const std::string torn = whole.substr(0, whole.find('\n') / 2);
    const std::string huge(5U << 20U, 'x');
    const std::pair<std::string, int> hostile[] = {
        {whole + "\n", 3},
        {whole + "{}\n" + whole, 3},
        {torn + whole, 1}, // glued by a run that was not told to skip what is done
        {whole + std::string("\0\xff\x1b[2J", 6), 3},
        {whole + torn + std::string(4096, '\0'), 3},
        {"\x89PNG\r\n\x1a\n", 1},
        {whole + "{\"file\":\"" + huge, 3},
        {huge, 1},
    };
    for (const auto& [text, line] : hostile) {
        write("hostile", text);
        const auto result = run("vorn-grade --format json --skip-done hostile flat >>hostile");
        EXPECT_EQ(result.status, 2);
        EXPECT_EQ(result.err.rfind("hostile, line " + std::to_string(line) + ": ", 0), 0U) << result.err;
        EXPECT_TRUE(content("hostile") == text) << "a file that may be another's must not be touched";
    }
    for (const char* file : {".", "/dev/zero", "good/done.jsonl"}) {
        const auto result = run("vorn-grade --format json flat --skip-done " + std::string(file));
        EXPECT_EQ(result.status, 2) << file;
        EXPECT_EQ(result.err.rfind(file, 0), 0U) << result.err;
    }
}

TEST_F(SkipDone, a_torn_last_line_is_cut_off_where_lines_are_appended) {
    const std::string whole = content("done.jsonl");
    const auto ends = {std::string("{"), whole.substr(0, 100), whole.substr(0, whole.find('\n'))};
    for (const std::string& end : ends) {
        write("torn.jsonl", whole + end);
        const auto elsewhere = run("vorn-grade --format json --skip-done torn.jsonl good flat");
        EXPECT_EQ(elsewhere.status, 0);
        EXPECT_NE(elsewhere.err.find("torn.jsonl, line 3: "), std::string::npos);
        EXPECT_EQ(content("torn.jsonl"), whole + end) << "it is read only";

        run("ln -sf torn.jsonl link; vorn-grade --format json --skip-done link - </dev/null >>torn.jsonl");
        EXPECT_EQ(content("torn.jsonl"), whole) << "a run without paths mends the file";
        write("torn.jsonl", whole + end);
        run("vorn-grade --format json --skip-done torn.jsonl good flat >>torn.jsonl");
        EXPECT_EQ(content("torn.jsonl"), whole + elsewhere.out);
    }
}

TEST_F(SkipDone, the_file_is_not_written_over_and_not_by_two) {
    const auto over = run("vorn-grade --format json --skip-done done.jsonl good 1<>done.jsonl");
    EXPECT_EQ(over.status, 2);
    EXPECT_NE(over.err.find(">>"), std::string::npos) << over.err;

    const auto two = run(R"sh(
        mkfifo paths; vorn-grade --format json --skip-done done.jsonl - <paths >>done.jsonl 2>/dev/null &
        exec {hold}>paths; echo flat >&"$hold"
        for ((i = 0; i < 400; ++i)); do grep -q '"file":"flat"' done.jsonl && break; sleep 0.05; done
        vorn-grade --format json --skip-done done.jsonl double >>done.jsonl; echo $?
        exec {hold}>&-; wait
        vorn-grade --format json --skip-done done.jsonl double >>done.jsonl; echo $?
    )sh");
    EXPECT_EQ(two.out, "2\n0\n") << two.err;
    EXPECT_NE(two.err.find("another vorn-grade"), std::string::npos);
    EXPECT_EQ(lineCount(content("done.jsonl")), 4);
}

#include "shell.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

/// The example curves and one path that can't be read, with blanks and accents in their names, as the list
/// `paths` and as `shard-*.paths` of four each; `whole` is what one process makes of them.
class Cluster : public testing::Test {
protected:
    void SetUp() override {
        if (run("parallel --version 2>&1 | grep -q '^GNU parallel'").status != 0) {
            GTEST_SKIP() << "GNU parallel is not installed (package parallel)";
        }
        ASSERT_EQ(run(R"sh(mkdir 'les données'; cp "$examples"/*.[Ss]00 'les données'
                           find 'les données' -iname '*.S00' | sort >paths; echo "no'such  curve.S00" >>paths
                           split -l 4 -d -a 4 --additional-suffix=.paths paths shard-
                           vorn-grade --format json - <paths >whole)sh")
                      .status,
                  1);
        m_whole = contentOf(m_folder.path("whole"));
        ASSERT_GE(std::count(m_whole.begin(), m_whole.end(), '\n'), 25);
    }

    /// `parallel` keeps files of its own in the home folder.
    ShellResult run(const std::string& script) const {
        return shell(m_folder, "export HOME=$PWD\n" + script);
    }
    [[nodiscard]] const std::string& whole() const { return m_whole; }

private:
    TemporaryFolder m_folder;
    std::string m_whole;
};

} // namespace

TEST_F(Cluster, several_processes_give_the_bytes_of_one) {
    const auto list = run("parallel --keep-order --pipe -N 3 vorn-grade --format json - <paths");
    EXPECT_EQ(list.status, 1) << "one of the processes has a path that can't be read\n" << list.err;
    EXPECT_TRUE(list.out == whole()) << list.err;
    const auto shards = run("parallel --keep-order 'vorn-grade --format json - <{}' ::: shard-*.paths");
    EXPECT_TRUE(shards.out == whole()) << shards.err;
}

TEST_F(Cluster, a_shard_that_was_killed_is_repeated_without_the_rest) {
    const std::string grade = R"sh(
        parallel 'vorn-grade --format json --skip-done {.}.jsonl - <{} >>{.}.jsonl' ::: shard-*.paths
        status=$?)sh";
    const auto killed = run(R"sh(
        mkfifo fifo; vorn-grade --format json - <fifo >shard-0001.jsonl & grader=$!
        exec {hold}>fifo; head -n 2 shard-0001.paths >&"$hold"
        for ((i = 0; i < 400; ++i)); do [ "$(wc -l <shard-0001.jsonl)" -eq 2 ] && break; sleep 0.05; done
        kill -9 $grader; wait $grader; [ $? -eq 137 ] || exit 99
        truncate -s -40 shard-0001.jsonl # as if it had been stopped inside of a write
    )sh" + grade);
    EXPECT_NE(killed.err.find("Left out as done: 1 file that shard-0001.jsonl"), std::string::npos)
        << killed.err;

    const auto merged = run("LC_ALL=C sort -u shard-*.jsonl; cat shard-*.jsonl | wc -l >lines");
    EXPECT_EQ(merged.out, run("LC_ALL=C sort -u whole").out);
    const auto again = run(grade + R"sh(
        [ "$status" -eq 1 ] && LC_ALL=C sort -u shard-*.jsonl
        echo $(($(cat shard-*.jsonl | wc -l) - $(cat lines))) >&2)sh");
    EXPECT_EQ(again.out, merged.out);
    EXPECT_EQ(again.err.substr(again.err.size() - 3), "\n1\n") << "only the failure came again";
}

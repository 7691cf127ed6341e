// Damaged text files on their whole road: the batch grader with all its outputs, and what it reads besides.
#include "Mutants.h"
#include "doneinputs.h"
#include "gradejob.h"
#include "gradereport/jsonlinereader.h"
#include "pathlist.h"
#include "rockeval/readerror.h"
#include "rockeval/resultreader.h"
#include "rockeval/signalreader.h"
#include "sourcerockqaqc/grading.h"
#include "temporaryfolder.h"

#include <sstream>

namespace {

using Values = std::vector<double>;
using Signal = algo::core::Signal1D<double, Values>;
using IsoSignal = algo::core::Signal1DIsoSampling<double, Values>;

std::string example(const std::string& name) {
    return contentOf(VORN_EXAMPLES "/" + name);
}

struct Answer {
    int status;
    std::string out;
    std::string err;
};

/// Of each line, which must be a grade or a failure.
std::vector<std::string> digestsIn(const std::string& out) {
    std::vector<std::string> digests;
    std::istringstream lines(out);
    for (std::string line; std::getline(lines, line);) {
        const auto read = gradereport::readJsonLine(line);
        EXPECT_NE(read.kind, gradereport::LineKind::other) << line;
        digests.push_back(read.sha256);
    }
    return digests;
}

Answer run(grade::Options options, const std::string& input = {}) {
    options.format = grade::Format::json;
    std::istringstream in(input);
    std::ostringstream out;
    std::ostringstream err;
    const int status = grade::run(options, {in, out, err, {}, false});
    return {status, out.str(), err.str()};
}

} // namespace

TEST(Mutation, each_raw_file_gets_one_line_a_grade_or_a_reason) {
    for (const std::string name : {"good-clean-01.S00", "good-decimal-comma-01.S00", "double-noisy-01.S00"}) {
        const TemporaryFolder folder;
        grade::Options options;
        Mutants(example(name)).each(60, [&](const std::string& bytes, int number) {
            options.paths.push_back(folder.write(std::to_string(number) + ".S00", bytes));
            return true;
        });
        options.report = folder.path("report.html");
        options.machineLearning = folder.path("learn.txt");
        alarm(120);
        const Answer result = run(options);
        alarm(0);
        EXPECT_EQ(digestsIn(result.out).size(), options.paths.size());
        EXPECT_LE(result.status, 1);
    }
}

TEST(Mutation, results_are_read_or_refused_by_line) {
    const auto meet = [&](const std::string& bytes, int) {
        try {
            return !rockeval::readResults(bytes, "m.R00").sections.empty();
        } catch (const rockeval::ReadError& error) {
            EXPECT_GT(error.line(), 0U);
            return false;
        }
    };
    EXPECT_GT(Mutants(example("good-clean-01.R00")).each(1500, meet), 100);
}

TEST(Mutation, a_signals_text_is_read_whole_or_not_at_all) {
    std::string plain = "pre.name\n60\n";
    std::string even = "\nname\n0 1 60\n";
    for (int i = 0; i < 60; ++i) {
        plain += std::to_string(i) + " " + std::to_string(i * i % 17) + ".5\n";
        even += std::to_string(i * i % 17) + "e-1\n";
    }
    const auto meet = [&](Signal&& signal, const std::string& bytes) {
        std::istringstream stream(bytes);
        signal.read(stream);
        EXPECT_EQ(signal.xValues().size(), signal.size());
        EXPECT_EQ(signal.yValues().size(), signal.size());
        EXPECT_LE(signal.size(), bytes.size());
        EXPECT_TRUE(!stream.fail() || signal.size() == 0);
        return signal.size() > 0;
    };
    const auto asPlain = [&](const std::string& bytes, int) { return meet(Signal(0), bytes); };
    const auto asEven = [&](const std::string& bytes, int) {
        return meet(IsoSignal(0, 1, 0, nullptr), bytes);
    };
    EXPECT_GT(Mutants(plain).each(1500, asPlain) + Mutants(even).each(1500, asEven), 100);
}

// A damaged digest must not pass for the one of another file, so that nothing is left ungraded.
TEST(Mutation, damaged_lines_of_an_earlier_run_leave_no_file_ungraded) {
    const TemporaryFolder folder;
    grade::Options options;
    for (const char* const name : {"good-clean-01.S00", "double-clean-01.S00", "flat-broad-01.S00"}) {
        options.paths.push_back(folder.write(name, example(name)));
    }
    const std::string whole = run(options).out;
    const std::vector<std::string> digests = digestsIn(whole);
    ASSERT_EQ(digests.size(), options.paths.size());
    options.skipDone = folder.path("done.jsonl");
    int used = 0;
    const int refused = Mutants(whole).each(200, [&](const std::string& bytes, int) {
        folder.write("done.jsonl", bytes);
        const Answer result = run(options);
        if (result.status == 2) {
            EXPECT_NE(result.err.find("done.jsonl"), std::string::npos);
            return true;
        }
        for (std::size_t i = 0; i < digests.size(); ++i) {
            EXPECT_TRUE(bytes.find(digests[i]) != std::string::npos ||
                        result.out.find(digests[i]) != std::string::npos)
                << options.paths[i];
        }
        ++used;
        return false;
    });
    EXPECT_GT(refused, 50);
    EXPECT_GT(used, 0);
}

TEST(Mutation, each_path_of_a_damaged_list_gets_its_line) {
    const TemporaryFolder folder;
    std::filesystem::current_path(folder.path()); // a damaged path must not lead out of it
    folder.write("curve-of-a-sample.S00", example("good-clean-01.S00"));
    std::string list;
    for (int times = 0; times < 10; ++times) {
        list += "curve-of-a-sample.S00\n";
    }
    grade::Options options;
    options.paths = {"-"};
    const auto meet = [&](const std::string& bytes, int) {
        std::istringstream paths(bytes);
        grade::PathList counted(paths, grade::PathEnd::line);
        std::size_t count = 0;
        while (counted.next().has_value()) {
            ++count;
        }
        EXPECT_EQ(digestsIn(run(options, bytes).out).size(), count);
        return true;
    };
    Mutants(list).each(150, meet);
}

#include "gradejob.h"

#include "earlieroutput.h"
#include "gradereport/describe.h"
#include "gradereport/exportorigin.h"
#include "inputfiles.h"
#include "progress.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <istream>
#include <ostream>
#include <stdexcept>
#include <system_error>

namespace grade {

namespace {

constexpr int allGraded = 0;
constexpr int someFailed = 1;
constexpr int wrongUsage = 2;

/// A file beside the main output, opened before the work starts, so that a wrong path costs no time.
class SideFile {
public:
    explicit SideFile(std::optional<std::string> path) : m_path(std::move(path)) {
        if (m_path) {
            m_stream.open(*m_path, std::ios::binary | std::ios::trunc);
        }
    }

    [[nodiscard]] bool wanted() const { return m_path.has_value(); }
    [[nodiscard]] std::ostream& stream() { return m_stream; }

    /// Whether the file can be written so far; says so on `err` where not.
    bool check(std::ostream& err) {
        if (!wanted() || m_stream.good()) {
            return true;
        }
        err << *m_path << ": the file can't be written (" << std::strerror(errno)
            << "); name another place or make room.\n";
        return false;
    }

private:
    std::optional<std::string> m_path;
    std::ofstream m_stream;
};

/// Where the origin of the machine learning's file goes: beside it, if it is a file that others can lie
/// beside.
std::optional<std::string> originOf(const std::optional<std::string>& machineLearning) {
    std::error_code unknown;
    if (!machineLearning || !std::filesystem::is_regular_file(*machineLearning, unknown)) {
        return std::nullopt;
    }
    return gradereport::originPath(*machineLearning);
}

class Job {
public:
    Job(const Options& options, const Console& console, DoneInputs done)
        : m_options(options), m_console(console), m_done(std::move(done)) {}

    void addOutput(std::unique_ptr<Output> output) { m_outputs.push_back(std::move(output)); }

    void work() {
        PathList listed(m_console.in, m_options.listedPathEnd);
        if (m_options.format == Format::json && m_options.paths == std::vector<std::string>{"-"}) {
            gradeAsListed(listed);
        } else {
            gradeInOrder(listed);
        }
        if (listed.broken()) {
            m_someFailed = true;
            m_console.err << "The paths on standard input could not be read to their end; check what gives "
                             "them and repeat the rest.\n";
        }
        for (const auto& output : m_outputs) {
            output->finish();
        }
        m_console.out.flush();
        if (m_leftOut > 0) {
            m_console.err << "Left out as done: " << m_leftOut << (m_leftOut == 1 ? " file" : " files")
                          << " that " << *m_options.skipDone << " holds the grade of.\n";
        }
    }

    [[nodiscard]] bool someFailed() const { return m_someFailed; }

private:
    void gradeInOrder(PathList& listed) {
        const InputFiles inputs = findInputFiles(m_options.paths, listed, m_options.language);
        Progress progress(m_console.err, m_console.showProgress, inputs.files.size());
        grade(inputs, progress);
    }

    /// One path after the other, so that whoever gives them sees each outcome before the next, and nothing
    /// is kept of the paths. Stops where nobody can take the outcomes: the list may be endless.
    void gradeAsListed(PathList& listed) {
        Progress progress(m_console.err, m_console.showProgress, std::nullopt);
        while (m_console.out) {
            const auto path = listed.next();
            if (!path) {
                return;
            }
            grade(filesAt(*path, m_options.language), progress);
        }
    }

    void grade(const InputFiles& inputs, Progress& progress) {
        for (const auto& failure : inputs.failures) {
            progress.clear();
            take(failure);
        }
        const auto curves = m_options.report ? gradereport::Curves::included : gradereport::Curves::leftOut;
        for (const std::string& path : inputs.files) {
            const Outcome outcome = gradeFile(path, m_options.settings, curves, m_done, m_options.language);
            progress.clear();
            std::visit([this](const auto& result) { take(result); }, outcome);
            progress.step();
        }
    }

    void take(const GradedFile& file) {
        for (const auto& output : m_outputs) {
            output->add(file);
        }
    }
    void take(const gradereport::FailureRecord& failure) {
        m_someFailed = true;
        for (const auto& output : m_outputs) {
            output->addFailure(failure);
        }
    }

    void take(const DoneBefore&) { ++m_leftOut; }

    const Options& m_options;
    const Console& m_console;
    DoneInputs m_done;
    std::size_t m_leftOut = 0;
    std::vector<std::unique_ptr<Output>> m_outputs;
    bool m_someFailed = false;
};

} // namespace

int run(const Options& options, const Console& console) {
    std::optional<EarlierOutput> earlier;
    DoneInputs done;
    if (options.skipDone) {
        try {
            earlier.emplace(*options.skipDone, console.descriptor, console.err);
            done = earlier->read(gradereport::settingsOf(options.settings), version());
        } catch (const std::runtime_error& error) {
            console.err << error.what() << '\n';
            return wrongUsage;
        }
    }
    SideFile report(options.report);
    if (!report.check(console.err)) {
        return wrongUsage;
    }
    SideFile machineLearning(options.machineLearning);
    if (!machineLearning.check(console.err)) {
        return wrongUsage;
    }
    SideFile origin(originOf(options.machineLearning));
    if (!origin.check(console.err)) {
        return wrongUsage;
    }
    Job job(options, console, std::move(done));
    job.addOutput(formattedOutput(options.format, console.out, console.terminal));
    if (report.wanted()) {
        job.addOutput(reportOutput(options.settings, options.language, report.stream()));
    }
    if (machineLearning.wanted()) {
        job.addOutput(machineLearningOutput(machineLearning.stream()));
    }
    if (origin.wanted()) {
        job.addOutput(originOutput(options.settings, origin.stream()));
    }
    job.work();

    report.stream().flush();
    machineLearning.stream().flush();
    origin.stream().flush();
    const bool sidesWritten =
        report.check(console.err) && machineLearning.check(console.err) && origin.check(console.err);
    if (!console.out) {
        console.err << "The output could not be written to its end; make room or name another place.\n";
    }
    return job.someFailed() || !sidesWritten || !console.out ? someFailed : allGraded;
}

} // namespace grade

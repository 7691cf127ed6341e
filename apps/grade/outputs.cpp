#include "outputs.h"

#include "gradereport/csvtable.h"
#include "gradereport/describe.h"
#include "gradereport/exportorigin.h"
#include "gradereport/htmlreport.h"
#include "gradereport/jsonlines.h"
#include "gradereport/texttable.h"
#include "sourcerockqaqc/machinelearningwriter.h"

#include <optional>
#include <ostream>
#include <utility>

namespace grade {

namespace {

/// Any of the writers that take records and failures one after the other.
template <class Writer>
class WriterOutput : public Output {
public:
    template <class... Arguments>
    explicit WriterOutput(Arguments&&... arguments) : m_writer(std::forward<Arguments>(arguments)...) {}

    void add(const GradedFile& file) override { m_writer.add(file.record); }
    void addFailure(const gradereport::FailureRecord& failure) override { m_writer.addFailure(failure); }
    void finish() override {}

protected:
    Writer& writer() { return m_writer; }

private:
    Writer m_writer;
};

class TableOutput final : public WriterOutput<gradereport::TextTable> {
public:
    using WriterOutput::WriterOutput;
    void finish() override { writer().finish(); }
};

/// Hands each line on at once: whoever reads it may wait for it, and a run that is stopped leaves all it did.
class JsonOutput final : public WriterOutput<gradereport::JsonLines> {
public:
    explicit JsonOutput(std::ostream& out) : WriterOutput(out, version()), m_out(out) {}

    void add(const GradedFile& file) override {
        WriterOutput::add(file);
        m_out.flush();
    }
    void addFailure(const gradereport::FailureRecord& failure) override {
        WriterOutput::addFailure(failure);
        m_out.flush();
    }

private:
    std::ostream& m_out;
};

class ReportOutput final : public WriterOutput<gradereport::HtmlReport> {
public:
    ReportOutput(const gradereport::GradeSettings& settings, gradereport::Language language,
                 std::ostream& out)
        : WriterOutput(settings, version(), language), m_out(out) {}
    void finish() override { writer().write(m_out); }

private:
    std::ostream& m_out;
};

class MachineLearningOutput final : public Output {
public:
    explicit MachineLearningOutput(std::ostream& out) : m_writer(out) {}

    void add(const GradedFile& file) override {
        m_writer.row(*file.signal);
        m_labels.push_back(file.record.quality);
    }
    void addFailure(const gradereport::FailureRecord&) override {} // no curve, so neither row nor label
    void finish() override {
        m_writer.beginLabels();
        for (const int label : m_labels) {
            m_writer.label(label);
        }
        m_writer.finish();
    }

private:
    algo::sr_qaqc::MachineLearningWriter<double, std::vector<double>> m_writer;
    std::vector<int> m_labels;
};

class OriginOutput final : public Output {
public:
    OriginOutput(const gradereport::GradeSettings& settings, std::ostream& out) : m_out(out) {
        m_origin.version = version();
        m_origin.settings = settings;
    }

    void add(const GradedFile& file) override {
        m_origin.inputs.push_back(
            {file.record.name, std::nullopt, file.record.file, file.record.sha256, file.record.quality});
    }
    void addFailure(const gradereport::FailureRecord&) override {} // nothing of it was exported
    void finish() override { gradereport::writeOrigin(m_out, m_origin); }

private:
    std::ostream& m_out;
    gradereport::ExportOrigin m_origin;
};

} // namespace

std::unique_ptr<Output> formattedOutput(Format format, std::ostream& out, const Terminal& terminal) {
    switch (format) {
    case Format::csv:
        return std::make_unique<WriterOutput<gradereport::CsvTable>>(out, version());
    case Format::json:
        return std::make_unique<JsonOutput>(out);
    case Format::table:
        break;
    }
    return std::make_unique<TableOutput>(out, terminal.colour, terminal.width);
}

std::unique_ptr<Output> reportOutput(const gradereport::EngineSettings& settings,
                                     gradereport::Language language, std::ostream& out) {
    return std::make_unique<ReportOutput>(gradereport::settingsOf(settings), language, out);
}

std::unique_ptr<Output> machineLearningOutput(std::ostream& out) {
    return std::make_unique<MachineLearningOutput>(out);
}

std::unique_ptr<Output> originOutput(const gradereport::EngineSettings& settings, std::ostream& out) {
    return std::make_unique<OriginOutput>(gradereport::settingsOf(settings), out);
}

} // namespace grade

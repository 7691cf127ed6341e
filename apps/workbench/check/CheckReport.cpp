#include "CheckReport.h"

#include "CheckGrades.h"
#include "MessageLoggerInterface.h"
#include "TDatabase.h"
#include "VKError.h"
#include "WindowLanguage.h"
#include "gradereport/describe.h"
#include "gradereport/htmlreport.h"
#include "gradereport/naturalorder.h"
#include "rockeval/french.h"

#include <QDir>
#include <QSaveFile>

#include <algorithm>
#include <optional>
#include <sstream>
#include <vector>

namespace {

struct Entry {
    std::string file;
    CheckedAnalysis* analysis;
    std::optional<AnalysisOrigin> origin;
};

/// As the batch grader takes files: in natural order, each path once.
std::vector<Entry> entriesOf(const CheckGrades& grades) {
    std::vector<Entry> entries;
    const QVector<CheckedAnalysis*> analyses = grades.analyses();
    for (CheckedAnalysis* const analysis : analyses) {
        std::optional<AnalysisOrigin> origin = analysis->origin();
        const QString file = origin ? origin->file : analysis->name();
        entries.push_back({file.toStdString(), analysis, std::move(origin)});
    }
    std::stable_sort(entries.begin(), entries.end(), [](const Entry& one, const Entry& other) {
        return gradereport::naturallyLess(one.file, other.file);
    });
    const auto isSame = [](const Entry& one, const Entry& other) {
        return one.file == other.file && one.analysis->name() == other.analysis->name();
    };
    entries.erase(std::unique(entries.begin(), entries.end(), isSame), entries.end());
    return entries;
}

gradereport::GradeRecord recordOf(const Entry& entry, const CheckedAnalysis::Signal& signal,
                                  const gradereport::EngineSettings& settings,
                                  gradereport::Language language) {
    const auto grading = algo::sr_qaqc::grade<double, std::vector<double>>(signal, settings);
    auto record = gradereport::describe(*signal, grading, settings, gradereport::Curves::included, language);
    record.file = entry.file;
    record.name = gradereport::fileNameOf(entry.file);
    if (entry.origin) {
        record.sha256 = entry.origin->sha256.toStdString();
        for (const QString& warning : entry.origin->warnings) {
            const std::string english = warning.toStdString();
            const bool french = language == gradereport::Language::french;
            record.warnings.push_back(french ? rockeval::inFrench(english) : english);
        }
    }
    return record;
}

} // namespace

CheckReport::CheckReport(const CheckGrades& grades) {
    const gradereport::EngineSettings settings = grades.dials().settings();
    const gradereport::Language language = windowLanguage();
    gradereport::HtmlReport report(gradereport::settingsOf(settings), VORN_VERSION, language);
    for (const Entry& entry : entriesOf(grades)) {
        ++m_count;
        const CheckedAnalysis::Signal signal = entry.analysis->signal();
        if (signal == nullptr) {
            report.addFailure(
                {entry.file,
                 entry.file + gradereport::said(language,
                                                ": the curve is no longer in the project; import "
                                                "the file again.",
                                                " : la courbe n'est plus dans le projet ; importez "
                                                "à nouveau le fichier.")});
        } else {
            m_withoutOrigin += entry.origin ? 0 : 1;
            report.add(recordOf(entry, signal, settings, language));
        }
    }
    std::ostringstream page;
    report.write(page);
    m_html = QByteArray::fromStdString(page.str());
}

void CheckReport::write(const QString& path) const {
    const QString shown = QDir::toNativeSeparators(path).toHtmlEscaped();
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(m_html) != m_html.size() || !file.commit()) {
        throw VKError(tr("The report could not be written.", "Le rapport n'a pas pu être écrit."),
                      QStringLiteral("<b>%1</b>: %2.").arg(shown, file.errorString().toHtmlEscaped()),
                      tr("Choose another folder or free some space.",
                         "Choisissez un autre dossier ou libérez de l'espace."));
    }
    MessageLoggerInterface::Information(tr("The report on %1 analyses was written to <b>%2</b>.",
                                           "Le rapport sur %1 analyses a été écrit dans <b>%2</b>.")
                                            .arg(m_count)
                                            .arg(shown));
    if (m_withoutOrigin > 0) {
        MessageLoggerInterface::Warning(
            tr("In the report, %1 of %2 analyses have no digest of their raw file, since the project doesn't "
               "know it: import the raw files again.",
               "Dans le rapport, %1 des %2 analyses n'ont pas d'empreinte de leur fichier brut, que le "
               "projet ne connaît pas : importez à nouveau les fichiers bruts.")
                .arg(m_withoutOrigin)
                .arg(m_count));
    }
}

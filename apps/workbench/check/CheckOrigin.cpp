#include "CheckOrigin.h"

#include "CheckGrades.h"
#include "MessageLoggerInterface.h"
#include "VKError.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

namespace {

/// What isn't known is null.
QJsonObject inputOf(CheckedAnalysis& analysis, const gradereport::EngineSettings& settings) {
    const std::optional<AnalysisOrigin> origin = analysis.origin();
    const std::optional<int> quality = analysis.quality(settings);
    return {{"name", analysis.name()},
            {"file", origin ? QJsonValue(origin->file) : QJsonValue()},
            {"sha256", origin ? QJsonValue(origin->sha256) : QJsonValue()},
            {"quality", quality ? QJsonValue(*quality) : QJsonValue()}};
}

} // namespace

QByteArray CheckOrigin::json(const CheckGrades& grades) {
    const gradereport::EngineSettings settings = grades.dials().settings();
    QJsonArray inputs;
    const QVector<CheckedAnalysis*> analyses = grades.analyses();
    for (CheckedAnalysis* const analysis : analyses) {
        inputs.append(inputOf(*analysis, settings));
    }
    const QJsonObject origin{{"version", VORN_VERSION},
                             {"settings", QJsonObject{{"sensitivity", settings.sensitivity},
                                                      {"coelution", settings.coelution},
                                                      {"height", settings.heightCriteria}}},
                             {"inputs", inputs}};
    return QJsonDocument(origin).toJson();
}

void CheckOrigin::writeBeside(const QString& exported, const CheckGrades& grades) {
    const QFileInfo beside(exported);
    const QString path = beside.dir().filePath(beside.completeBaseName() + QStringLiteral(".origin.json"));
    const QString shown = QDir::toNativeSeparators(path).toHtmlEscaped();
    const QByteArray text = json(grades);
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit()) {
        throw VKError(tr("The settings and digests could not be written beside the export.",
                         "Les réglages et les empreintes n'ont pas pu être écrits à côté de l'export."),
                      QStringLiteral("<b>%1</b>: %2.").arg(shown, file.errorString().toHtmlEscaped()),
                      tr("Free some space and export again.", "Libérez de l'espace et exportez à nouveau."));
    }
    MessageLoggerInterface::Information(
        tr("Version, settings and digests of the raw files stand beside it in <b>%1</b>.",
           "La version, les réglages et les empreintes des fichiers bruts sont à côté, dans <b>%1</b>.")
            .arg(shown));
}

#include "OriginFile.h"

#include "AnalysisOrigin.h"
#include "MessageLoggerInterface.h"
#include "VKError.h"

#include <QByteArray>
#include <QDir>
#include <QSaveFile>

#include <sstream>

void OriginFile::writeBeside(const QString& exported, gradereport::ExportOrigin origin) {
    origin.version = VORN_VERSION;
    std::ostringstream json;
    gradereport::writeOrigin(json, origin);
    const QByteArray text = QByteArray::fromStdString(json.str());
    const QString path = QString::fromStdString(gradereport::originPath(exported.toStdString()));
    const QString shown = QDir::toNativeSeparators(path).toHtmlEscaped();
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit()) {
        throw VKError(tr("What the export rests on could not be written beside it.",
                         "Ce sur quoi repose l'export n'a pas pu être écrit à côté de lui."),
                      QStringLiteral("<b>%1</b>: %2.").arg(shown, file.errorString().toHtmlEscaped()),
                      tr("Free some space and export again.", "Libérez de l'espace et exportez à nouveau."));
    }
    MessageLoggerInterface::Information(
        tr("Version, settings and digests of the raw files stand beside it in <b>%1</b>.",
           "La version, les réglages et les empreintes des fichiers bruts sont à côté, dans <b>%1</b>.")
            .arg(shown));
}

gradereport::OriginInput OriginFile::input(const QString& name, const AnalysisOrigin* origin) {
    gradereport::OriginInput input;
    input.name = name.toStdString();
    if (origin != nullptr) {
        input.file = origin->file.toStdString();
        input.sha256 = origin->sha256.toStdString();
    }
    return input;
}

#include "TExportCommand.h"

#include "MessageLoggerInterface.h"
#include "TPlotExport.h"
#include "VKError.h"
#include "VKViewer2D.h"
#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>
#include <QRegularExpression>
#include <QSettings>

namespace TechPlot {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(TechPlot::TExportCommand)
};

constexpr int longestName = 100;

QString folderKey() {
    return QStringLiteral("techplot/exportFolder");
}

QString withSuffix(const QString& fileName, const QString& filter) {
    if (!QFileInfo(fileName).suffix().isEmpty())
        return fileName;
    for (const char* suffix : {".svg", ".pdf"}) {
        if (filter.contains(QLatin1String(suffix)))
            return fileName + QLatin1String(suffix);
    }
    return fileName + QLatin1String(".png");
}

} // namespace

QString TExportCommand::fileNameFor(const QString& name) {
    static const QRegularExpression awkward(QStringLiteral("[\\x00-\\x1f<>:\"/\\\\|?*]+"));
    QString safe = name.simplified().replace(awkward, QStringLiteral("_")).left(longestName);
    while (safe.startsWith('.') || safe.startsWith(' '))
        safe.remove(0, 1);
    return safe.isEmpty() ? Texts::tr("curves", "courbes") : safe;
}

QString TExportCommand::run(const QVector<const VKViewer2D*>& viewers, const QString& name, QWidget* parent) {
    // The dialog runs an event loop: a viewer may be gone when it ends.
    QVector<QPointer<const VKViewer2D>> wanted;
    for (const VKViewer2D* viewer : viewers)
        wanted.append(viewer);
    const QDir folder(QSettings().value(folderKey(), QDir::homePath()).toString());
    QString filter;
    QString fileName = QFileDialog::getSaveFileName(
        parent, Texts::tr("Save curves", "Enregistrer les courbes"),
        folder.filePath(fileNameFor(name) + QStringLiteral(".png")),
        Texts::tr("PNG picture (*.png);;SVG drawing (*.svg);;PDF document (*.pdf)",
                  "Image PNG (*.png);;Dessin SVG (*.svg);;Document PDF (*.pdf)"),
        &filter);
    if (fileName.isEmpty())
        return {};
    fileName = withSuffix(fileName, filter);
    QVector<const VKViewer2D*> present;
    for (const auto& viewer : qAsConst(wanted)) {
        if (viewer != nullptr)
            present.append(viewer);
    }
    try {
        TPlotExport::write(present, fileName);
        QSettings().setValue(folderKey(), QFileInfo(fileName).absolutePath());
        MessageLoggerInterface::Information(
            Texts::tr("Curves were saved to <b>%1</b>.", "Les courbes ont été enregistrées dans <b>%1</b>.")
                .arg(QDir::toNativeSeparators(fileName).toHtmlEscaped()));
        return fileName;
    } catch (const VKError& error) {
        MessageLoggerInterface::Error(error.text());
        return {};
    }
}

} // namespace TechPlot

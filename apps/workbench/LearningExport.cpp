#include "LearningExport.h"

#include "MessageLoggerInterface.h"
#include "ProjectMgrInterface.h"
#include "TDatabase.h"
#include "TextPage.h"
#include "VKRibbonModuleBar.h"
#include "Workspace.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMetaObject>

namespace {

QString translated(const char* english, const char* french) {
    return QCoreApplication::translate("LearningExport", english, french);
}

/// The process's working folder, for as long as this object lives.
class WorkingFolder {
public:
    explicit WorkingFolder(const QString& path) { QDir::setCurrent(path); }
    ~WorkingFolder() { QDir::setCurrent(m_before); }
    WorkingFolder(const WorkingFolder&) = delete;
    WorkingFolder& operator=(const WorkingFolder&) = delete;

private:
    const QString m_before = QDir::currentPath();
};

QString projectFolder() {
    const ProjectMgrInterface* const projects = ProjectMgrInterface::returnMe();
    const TechDB::TDatabase* const project = projects == nullptr ? nullptr : projects->projectDatabase();
    if (project == nullptr) {
        return QDir::currentPath();
    }
    return project->folder().isNull() ? QDir::homePath() : project->folder(); // a server has no folder
}

/// Where the engine writes: a fixed file, on Windows at a fixed place.
QString filePath(const QString& folder) {
#if defined(Q_OS_WIN)
    Q_UNUSED(folder)
    return QStringLiteral("c:/dataSR.txt");
#else
    return QDir(folder).filePath(QStringLiteral("dataSR.txt"));
#endif
}

} // namespace

QString LearningExport::run(VKRibbonModuleBar& bar, Workspace& workspace) {
    const QString folder = projectFolder();
    QString path = filePath(folder);
    QFile::remove(path); // what is there afterwards is new
    {
        const WorkingFolder working(folder);
        QMetaObject::invokeMethod(&bar, "processExport", Qt::DirectConnection);
    }
    const QString shown = QDir::toNativeSeparators(path).toHtmlEscaped();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        MessageLoggerInterface::Error(
            translated(
                "The file <b>%1</b> could not be written: check that its folder may be written.",
                "Le fichier <b>%1</b> n'a pas pu être écrit : vérifiez que l'écriture est permise dans "
                "son dossier.")
                .arg(shown));
        return {};
    }
    MessageLoggerInterface::Information(
        translated("The curves and their grades were exported to <b>%1</b>.",
                   "Les courbes et leurs évaluations ont été exportées vers <b>%1</b>.")
            .arg(shown));
    workspace.addPage(new TextPage(QFileInfo(path).fileName(), QString::fromUtf8(file.readAll())));
    return path;
}

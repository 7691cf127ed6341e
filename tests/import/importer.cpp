// Imports tables and raw files into a project until it is killed: importer PROJECT FOLDER. Each table of
// FOLDER/one and FOLDER/two, of the same names, replaces the other; each file of FOLDER/raw comes in once.
#include "ImportModules.h"
#include "ModalAnswers.h"
#include "Workbench.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QSettings>

#include <iostream>

namespace {

QStringList filesIn(const QString& folder) {
    QStringList paths;
    for (const QFileInfo& file : QDir(folder).entryInfoList(QDir::Files)) {
        paths.append(file.absoluteFilePath());
    }
    return paths;
}

void importAnew(Workbench& workbench, ImportModules::Kind kind, const QStringList& paths) {
    workbench.imports().importFiles(kind, paths);
    workbench.imports().bar(kind)->closeRequested(); // with its list of files, so that they are taken again
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    QCoreApplication::setApplicationName("vorn-importer");
    // Settings of its own: Qt waits half a minute for those that a process was killed over.
    const QString settings = QString("%1/settings-%2").arg(argv[2]).arg(QCoreApplication::applicationPid());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings);
    Workbench workbench;
    workbench.projects().open(QString::fromLocal8Bit(argv[1]));
    const QDir folder(QString::fromLocal8Bit(argv[2]));
    const ModalAnswers answers({"Overwrite"});
    std::cout << "importing" << std::endl;
    const QStringList raw = filesIn(folder.filePath("raw"));
    for (int round = 0;; ++round) {
        importAnew(workbench, ImportModules::Kind::Gas, filesIn(folder.filePath("two")));
        importAnew(workbench, ImportModules::Kind::SourceRock, raw.mid(round * 5 % raw.size(), 5));
        importAnew(workbench, ImportModules::Kind::Gas, filesIn(folder.filePath("one")));
    }
}

#include "ImportTour.h"

#include "DropDialog.h"
#include "ModalAnswers.h"
#include "PictureFolder.h"
#include "ProjectTree.h"
#include "VKError.h"
#include "Workbench.h"
#include "Workspace.h"

#include <QAction>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTreeView>

namespace {

using Kind = ImportModules::Kind;

VKError cannotWrite(const QString& path) {
    return VKError(QCoreApplication::translate(
                       "ImportTour",
                       "The file <b>%1</b> can't be written: check that its folder may be written.",
                       "Le fichier <b>%1</b> ne peut pas être écrit : vérifiez que son dossier peut l'être.")
                       .arg(path.toHtmlEscaped()));
}

/// On disk, where a user would have them.
QStringList carriedFiles(const QString& from, const QString& to) {
    QDir().mkpath(to);
    QStringList paths;
    const QStringList names = QDir(from).entryList(QDir::Files, QDir::Name);
    for (const QString& name : names) {
        const QString path = QDir(to).filePath(name);
        QFile::remove(path); // of an earlier run
        if (!QFile::copy(QDir(from).filePath(name), path)) {
            throw cannotWrite(path);
        }
        paths.append(path);
    }
    return paths;
}

} // namespace

ImportTour::ImportTour(Workbench& workbench, const PictureFolder& pictures)
    : m_workbench(workbench), m_pictures(pictures) {}

void ImportTour::importRawFiles() {
    const QStringList files = carriedFiles(QStringLiteral(":/examples"), m_pictures.filePath("files"));
    m_workbench.imports().importFiles(Kind::SourceRock, files);
    PictureFolder::settle();
    m_pictures.write(QStringLiteral("import.png"), m_workbench.window());
    closeModule(Kind::SourceRock);
}

/// The first entry whose name ends so.
void ImportTour::openFromTree(const QString& end) {
    const ProjectTree& tree = m_workbench.window().tree();
    auto* const view = tree.findChild<QTreeView*>();
    const QModelIndexList found = view->model()->match(view->model()->index(0, 0), Qt::DisplayRole, end, 1,
                                                       Qt::MatchEndsWith | Qt::MatchRecursive);
    if (!found.isEmpty()) {
        view->setCurrentIndex(found.first());
        tree.openAction()->trigger();
    }
}

/// With its list of files, so that they are taken again.
void ImportTour::closeModule(ImportModules::Kind kind) {
    m_workbench.imports().bar(kind)->closeRequested();
    PictureFolder::settle();
}

void ImportTour::importTables() {
    carriedFiles(QStringLiteral(":/tables"), m_pictures.filePath("files"));
    ModalAnswers answers({QStringLiteral("Overwrite"), QStringLiteral("Écraser")});
    answers.setObserver([this](QWidget& dialog) { m_pictures.write(QStringLiteral("wizard.png"), dialog); });
    const QString table = QStringLiteral("source-rock.xlsx");
    m_workbench.imports().importFiles(Kind::SourceRock, {m_pictures.filePath("files/" + table)});
    answers.setObserver({});

    const QStringList unknown{m_pictures.filePath("files/custom.xlsx")};
    m_workbench.imports().importFiles(Kind::Custom, unknown);
    m_workbench.imports()
        .bar(Kind::Custom)
        ->closeRequested(); // with its list, so that the file is taken again
    PictureFolder::settle();
    m_workbench.imports().importFiles(Kind::Custom, unknown);

    PictureFolder::settle(); // the tree follows the project
    openFromTree(table);
    PictureFolder::settle();
    m_pictures.write(QStringLiteral("dataset.png"), m_workbench.window());
}

void ImportTour::dropFolder() {
    const QString folder = m_pictures.filePath("dropped");
    carriedFiles(QStringLiteral(":/examples"), folder);
    carriedFiles(QStringLiteral(":/tables"), folder + "/tables");
    QFile notes(folder + "/notes.txt");
    if (!notes.open(QIODevice::WriteOnly) || notes.write("to do") < 0) {
        throw cannotWrite(notes.fileName());
    }
    notes.close();
    ModalAnswers answers({QStringLiteral("Overwrite"), QStringLiteral("Écraser")});
    answers.setObserver([this](QWidget& dialog) {
        if (dynamic_cast<DropDialog*>(&dialog) != nullptr) {
            m_pictures.write(QStringLiteral("drop.png"), dialog);
        }
    });
    m_workbench.intake().take({folder});
    PictureFolder::settle();
    m_pictures.write(QStringLiteral("outcome.png"), m_workbench.window());
}

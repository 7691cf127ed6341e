#include "FileIntake.h"

#include "DropDialog.h"
#include "FileSorter.h"
#include "FolderWalk.h"
#include "ImportModules.h"
#include "ImportOutcomes.h"
#include "MessageLoggerInterface.h"
#include "OutcomeTable.h"
#include "ProjectCommands.h"
#include "ProjectMgr.h"
#include "TDatabase.h"
#include "TLocalFiles.h"
#include "TProgressBarMgr.h"
#include "VKDataModel.h"
#include "Workspace.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QScopedValueRollback>

#include <algorithm>

using Target = DropChoice::Target;
using State = ImportOutcome::State;

namespace {

QVector<SortedFile> sorted(const QStringList& dropped) {
    const FolderWalk walk(dropped);
    QVector<SortedFile> files;
    TProgressBarMgr progress(walk.files().size(),
                             FileIntake::tr("Looking at the files", "Examen des fichiers"), true);
    for (const QString& path : walk.files()) {
        files.append(FileSorter::sort(path));
        progress.setProgress(files.size(), true);
    }
    return files + walk.refused();
}

ImportModules::Kind moduleOf(Target target) {
    switch (target) {
    case Target::Gas:
        return ImportModules::Kind::Gas;
    case Target::Custom:
        return ImportModules::Kind::Custom;
    default:
        return ImportModules::Kind::SourceRock;
    }
}

/// One module gets all of its files at once.
QStringList pathsFor(Target target, const QVector<DropChoice>& choices) {
    QStringList paths;
    for (const DropChoice& choice : choices) {
        paths += choice.target == target ? choice.paths : QStringList();
    }
    return paths;
}

QStringList pathsOf(const QVector<SortedFile>& files) {
    QStringList paths;
    for (const SortedFile& file : files) {
        paths.append(file.path);
    }
    return paths;
}

} // namespace

FileIntake::FileIntake(const Parts& parts) : m_parts(parts) {
    connect(&m_parts.outcomes, &ImportOutcomes::gathered, this, &FileIntake::show);
}

void FileIntake::askForFiles() {
    const QStringList paths = QFileDialog::getOpenFileNames(
        &m_parts.window, tr("Import files", "Importer des fichiers"), TLocalFiles::lastFolder());
    if (!paths.isEmpty()) {
        TLocalFiles::rememberFolder(QFileInfo(paths.first()).absolutePath());
        take(paths);
    }
}

void FileIntake::askForFolder() {
    const QString path = QFileDialog::getExistingDirectory(
        &m_parts.window, tr("Import a folder", "Importer un dossier"), TLocalFiles::lastFolder());
    if (!path.isEmpty()) {
        TLocalFiles::rememberFolder(path);
        take({path});
    }
}

void FileIntake::take(const QStringList& paths) {
    if (m_isBusy || paths.isEmpty()) {
        return; // behind a dialog of the import before, nothing can be dropped
    }
    const QScopedValueRollback<bool> busy(m_isBusy, true);
    const QVector<SortedFile> files = sorted(paths);
    const DropGroups groups(files);
    if (!groups.onlyProject().isEmpty()) {
        m_parts.projectCommands.openProject(groups.onlyProject());
        return;
    }
    QVector<DropChoice> choices;
    if (groups.offersAnything()) {
        DropDialog dialog(groups, &m_parts.window);
        if (dialog.exec() == 0) {
            return;
        }
        choices = dialog.choices();
    }
    m_parts.outcomes.begin(pathsOf(files));
    for (const SortedFile& file : files) {
        if (file.kind == FileKind::Unknown) {
            note({file.path}, State::Skipped,
                 tr("It wasn't taken: %1.", "Il n'a pas été pris : %1.").arg(file.reason));
        }
    }
    try {
        carryOut(choices);
    } catch (...) { // the application tells it; what was done before is told here
        m_parts.outcomes.finish();
        throw;
    }
    m_parts.outcomes.finish();
}

/// The project first: what is imported goes into it.
void FileIntake::carryOut(const QVector<DropChoice>& choices) {
    const QStringList toOpen = pathsFor(Target::Open, choices);
    const bool isOpen =
        toOpen.isEmpty() ? m_parts.projects.projectDatabase() != nullptr : open(toOpen.first());
    for (const Target target : {Target::SourceRock, Target::Gas, Target::Custom}) {
        const QStringList paths = pathsFor(target, choices);
        if (isOpen && !paths.isEmpty()) {
            m_parts.imports.importFiles(moduleOf(target), paths);
        } else {
            note(paths, State::Skipped,
                 tr("There was no project to put it into; open or make one and drop it again.",
                    "Il n'y avait pas de projet où le mettre ; ouvrez-en ou créez-en un et déposez-le à "
                    "nouveau."));
        }
    }
    note(pathsFor(Target::LeaveOut, choices), State::Skipped,
         tr("You left it out.", "Vous l'avez laissé de côté."));
}

bool FileIntake::open(const QString& path) {
    m_parts.projectCommands.openProject(path);
    const TechDB::TDatabase* const project = m_parts.projects.projectDatabase();
    const bool isOpen = project != nullptr && QFileInfo(project->path()) == QFileInfo(path);
    note({path}, isOpen ? State::Imported : State::Failed,
         isOpen ? tr("The project was opened.", "Le projet a été ouvert.")
                : tr("The project could not be opened; the messages say why.",
                     "Le projet n'a pas pu être ouvert ; les messages disent pourquoi."));
    return isOpen;
}

void FileIntake::note(const QStringList& paths, State state, const QString& text) {
    for (const QString& path : paths) {
        m_parts.outcomes.add({path, state, text, {}});
    }
}

void FileIntake::show(const QVector<ImportOutcome>& outcomes, bool severalPasses) {
    const bool allWell = std::all_of(outcomes.begin(), outcomes.end(), [](const ImportOutcome& outcome) {
        return outcome.state == State::Imported;
    });
    if (allWell && !severalPasses) {
        return; // the module's list and the messages tell it already
    }
    if (m_page != nullptr) {
        m_parts.workspace.closePage(m_page);
    }
    m_parts.workspace.addTable(OutcomeTable::of(outcomes));
    m_page = m_parts.workspace.currentPage();
    const QString text = tr("Import: %1; the page <b>Import outcome</b> names each file.",
                            "Import : %1 ; la page <b>Résultat de l'import</b> nomme chaque fichier.")
                             .arg(OutcomeTable::summary(outcomes));
    allWell ? MessageLoggerInterface::Information(text) : MessageLoggerInterface::Warning(text);
}

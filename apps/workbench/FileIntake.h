#pragma once

#include "DropChoice.h"
#include "ImportOutcome.h"

#include <QObject>
#include <QPointer>
#include <QVector>

class DropGroups;
class ImportModules;
class ImportOutcomes;
class ProjectCommands;
class ProjectMgr;
class QWidget;
class Workspace;

/// Takes files and folders of any kind: sorts them, asks what is to become of them, opens the project that
/// was chosen, lets the import modules do the rest, and shows in one list what became of each file.
class FileIntake : public QObject {
    Q_OBJECT

public:
    /// What it works with; all outlive this object. `window` is the parent of the dialogs.
    struct Parts {
        QWidget& window;
        Workspace& workspace;
        ProjectMgr& projects;
        ProjectCommands& projectCommands;
        ImportModules& imports;
        ImportOutcomes& outcomes;
    };

    explicit FileIntake(const Parts& parts);

    void take(const QStringList& paths);
    /// Ask for files, or for a folder, and take them.
    void askForFiles();
    void askForFolder();

private:
    void carryOut(const QVector<DropChoice>& choices);
    bool open(const QString& path);
    void note(const QStringList& paths, ImportOutcome::State state, const QString& text);
    void show(const QVector<ImportOutcome>& outcomes, bool severalPasses);

    Parts m_parts;
    QPointer<QWidget> m_page; // of the import before
    bool m_isBusy = false;
};

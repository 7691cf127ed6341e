#pragma once

#include <QObject>

class ModuleLauncher;
class ProjectMgr;
class QAction;
class QMenu;
class QWidget;

/// The actions on projects: new, open, on a server, recent, example, backup copy. They ask for files and
/// report failures on the log; before another project opens, the modules end, and stay if one can't save.
class ProjectCommands : public QObject {
    Q_OBJECT

public:
    /// `window` is the parent of the dialogs. All three outlive this object.
    ProjectCommands(ProjectMgr& projects, ModuleLauncher& launcher, QWidget& window);
    ~ProjectCommands() override;

    QAction* newAction() const { return m_new; }
    QAction* openAction() const { return m_open; }
    QAction* serverAction() const { return m_server; }
    QAction* serverCopyAction() const { return m_serverCopy; }
    QAction* exampleAction() const { return m_example; }
    QAction* backupAction() const { return m_backup; }
    QMenu* recentMenu() const { return m_recent; }

    /// The project that was open last or, if there is none, the example, which is made if need be. A
    /// failure is on the log.
    void openAtStart();
    void openProject(const QString& path);
    void openExample();

public slots:
    void translate();

private:
    void askForNew();
    void askForOpen();
    void askForServer();
    void askForServerCopy();
    QString askForAddress(const QString& title);
    bool isNewWantedOn(const QString& address) const;
    void askForBackup();
    void fillRecentMenu();
    template <class Operation>
    bool attempt(Operation operation);
    QString fileFilter() const;
    QString folder() const;

    ProjectMgr& m_projects;
    ModuleLauncher& m_launcher;
    QWidget& m_window;
    QAction* m_new;
    QAction* m_open;
    QAction* m_server;
    QAction* m_example;
    QAction* m_backup;
    QAction* m_serverCopy;
    QMenu* m_recent;
};

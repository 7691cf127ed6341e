#pragma once

#include "VKObject2.h"
#include "VKRibbonModuleBar.h"

#include <QList>
#include <QObject>
#include <QPointer>

class CheckActions;
class CheckSession;
class ModuleLauncher;
class RibbonHost;
class TrialGate;
class VKDataModel;
class VKListViewSignal;
class Workspace;

/// The quality check as the application's menus reach it. One is open at a time.
class QualityCheck : public QObject {
    Q_OBJECT

public:
    /// All three outlive this object.
    QualityCheck(RibbonHost& ribbon, ModuleLauncher& launcher, Workspace& workspace);

    /// Opens it, or brings it to front.
    void start();
    bool isOpen() const { return !m_bar.isNull(); }
    VKRibbonModuleBar* bar() const { return m_bar.data(); }
    /// The list of signals; null while it isn't open.
    VKListViewSignal* list() const;

    /// Null while it isn't open, or can't be helped with.
    CheckSession* session() const;
    /// What can be done in it by menu and keys.
    CheckActions& actions() const { return *m_actions; }

    /// Drops the objects on the list as a mouse would, and opens the quality check before if need be.
    void send(const QList<const VKObject2*>& objects);

    /// To be called before the project is closed: the analyses stay in the list.
    void leaveProject();

    /// Lets it write its file for machine learning into the project's folder, and shows the file; beside it
    /// goes what the grades rest on.
    void exportForLearning();

private:
    static bool isResults(const VKDataModel& table);
    void tableOpened(const VKDataModel* table);
    void tableExported(const VKDataModel* table, const QString& path);

    Workspace& m_workspace;
    RibbonHost& m_ribbon;
    ModuleLauncher& m_launcher;
    TrialGate* m_gate;
    QPointer<VKRibbonModuleBar> m_bar;
    CheckActions* m_actions;
    QPointer<CheckSession> m_session;
};

#pragma once

#include "ApplicationHost.h"
#include "FileDrop.h"
#include "FileIntake.h"
#include "HelpDesk.h"
#include "ImportModules.h"
#include "ImportOutcomes.h"
#include "LanguageSwitch.h"
#include "LookSwitch.h"
#include "MainWindow.h"
#include "MessageLogModel.h"
#include "ModuleLauncher.h"
#include "ObjectCommands.h"
#include "ProjectCommands.h"
#include "ProjectMgr.h"
#include "QualityCheck.h"
#include "RibbonHost.h"

class MainMenu;

/// The whole application but its event loop: makes the parts in the order in which they need each other and
/// connects them. What happens is in the parts.
class Workbench : public QObject {
    Q_OBJECT

public:
    Workbench();
    ~Workbench() override;

    MainWindow& window() { return m_window; }
    MessageLogModel& log() { return m_log; }
    ProjectMgr& projects() { return m_projects; }
    ProjectCommands& projectCommands() { return m_projectCommands; }
    ImportModules& imports() { return m_imports; }
    FileIntake& intake() { return m_intake; }
    QualityCheck& qualityCheck() { return m_qualityCheck; }
    LanguageSwitch& language() { return m_language; }
    LookSwitch& look() { return m_look; }

private:
    void wireProject();
    void wireTree();
    void showTitle();

    // Modules end before what they reach: the launcher is destroyed first of all they use.
    MessageLogModel m_log;
    LanguageSwitch m_language;
    LookSwitch m_look;
    MainWindow m_window;
    HelpDesk m_help;
    RibbonHost m_ribbon;
    ApplicationHost m_application;
    ProjectMgr m_projects;
    ModuleLauncher m_launcher;
    ImportOutcomes m_outcomes;
    ImportModules m_imports;
    QualityCheck m_qualityCheck;
    ProjectCommands m_projectCommands;
    FileIntake m_intake;
    FileDrop m_fileDrop;
    ObjectCommands m_objectCommands;
    MainMenu* m_menu;
};

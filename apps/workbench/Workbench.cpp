#include "Workbench.h"

#include "CheckActions.h"
#include "MainMenu.h"
#include "ProjectTree.h"
#include "TDatabase.h"
#include "VKObject2.h"
#include "Workspace.h"

#include <QDir>
#include <QFileInfo>
#include <QLocale>

Workbench::Workbench()
    : m_window(m_log), m_help(m_window.workspace()), m_ribbon(m_window.ribbon()), m_application(m_window),
      m_launcher(m_window.workspace()), m_outcomes(m_log), m_imports(m_ribbon, m_launcher, m_outcomes),
      m_qualityCheck(m_ribbon, m_launcher, m_window.workspace()),
      m_projectCommands(m_projects, m_launcher, m_window),
      m_intake({m_window, m_window.workspace(), m_projects, m_projectCommands, m_imports, m_outcomes}),
      m_fileDrop(m_window), m_objectCommands(m_launcher, m_window),
      m_menu(new MainMenu(m_window, m_projectCommands, m_imports, m_qualityCheck, m_language, m_look)) {
    MessageLoggerInterface::setDefaultLogger(&m_log);
    wireProject();
    wireTree();
    connect(&m_language, &LanguageSwitch::languageChanged, &m_projectCommands, &ProjectCommands::translate);
    connect(&m_language, &LanguageSwitch::languageChanged, m_menu, &MainMenu::translate);
    connect(&m_language, &LanguageSwitch::languageChanged, &m_qualityCheck.actions(),
            &CheckActions::translate);
    connect(&m_language, &LanguageSwitch::languageChanged, this, &Workbench::showTitle);
    // Number boxes write as their window does.
    connect(&m_language, &LanguageSwitch::languageChanged, &m_window,
            [this] { m_window.setLocale(QLocale()); });
    connect(&m_fileDrop, &FileDrop::dropped, &m_intake, &FileIntake::take);
    connect(m_menu, &MainMenu::filesRequested, &m_intake, &FileIntake::askForFiles);
    connect(m_menu, &MainMenu::folderRequested, &m_intake, &FileIntake::askForFolder);
    connect(m_menu, &MainMenu::helpRequested, &m_help, &HelpDesk::show);
    connect(m_menu, &MainMenu::helpHereRequested, &m_help, &HelpDesk::showForFocus);
    connect(&m_application, &ApplicationHost::helpRequested, &m_help, &HelpDesk::show);
    m_window.setCloseGuard([this] { return m_launcher.closeAll(); });
    showTitle();
}

Workbench::~Workbench() {
    m_launcher.closeAll();
    m_projects.close();
}

void Workbench::wireProject() {
    connect(&m_projects, &ProjectMgr::closing, this, [this] {
        m_qualityCheck.leaveProject();
        m_window.tree().setProject(nullptr);
        m_window.workspace().closePages();
    });
    connect(&m_projects, &ProjectMgr::opened, this, [this](TechDB::TDatabase* project) {
        m_window.tree().setProject(project);
        showTitle();
    });
    connect(&m_application, &ApplicationHost::projectChanged, &m_window.tree(), &ProjectTree::refreshSoon);
}

void Workbench::wireTree() {
    ProjectTree& tree = m_window.tree();
    connect(&tree, &ProjectTree::openRequested, &m_objectCommands, &ObjectCommands::open);
    connect(&tree, &ProjectTree::exportRequested, &m_objectCommands, &ObjectCommands::exportCsv);
    connect(&tree, &ProjectTree::sendRequested, &m_qualityCheck, &QualityCheck::send);
}

void Workbench::showTitle() {
    const TechDB::TDatabase* const project = m_projects.projectDatabase();
    const QString name = project == nullptr ? tr("no project", "aucun projet") : project->title();
    m_window.showStatus(project == nullptr ? QString() : QDir::toNativeSeparators(project->path()));
    m_window.setWindowTitle(tr("%1 – Vorn workbench", "%1 – Atelier Vorn").arg(name));
}

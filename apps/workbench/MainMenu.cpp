#include "MainMenu.h"

#include "CheckActions.h"
#include "ImportModules.h"
#include "LanguageSwitch.h"
#include "LookSwitch.h"
#include "MainWindow.h"
#include "ProjectCommands.h"
#include "ProjectTree.h"
#include "QualityCheck.h"
#include "TLineIcon.h"
#include "VKRibbon.h"
#include "VKRibbonBar.h"
#include "VKRibbonGroup.h"

#include <QActionGroup>
#include <QBoxLayout>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QToolButton>

MainMenu::MainMenu(MainWindow& window, const ProjectCommands& projects, ImportModules& imports,
                   QualityCheck& qualityCheck, LanguageSwitch& language, LookSwitch& look)
    : QObject(&window), m_window(window), m_project(window.menuBar()->addMenu(QString())),
      m_objects(window.menuBar()->addMenu(QString())), m_modules(window.menuBar()->addMenu(QString())),
      m_view(window.menuBar()->addMenu(QString())), m_languages(new QMenu(&window)),
      m_looks(new QMenu(&window)), m_help(window.menuBar()->addMenu(QString())),
      m_languageChoice(new QActionGroup(this)), m_lookChoice(new QActionGroup(this)),
      m_files(action(QStringLiteral("launch"), QKeySequence(Qt::CTRL + Qt::Key_I))),
      m_folder(action(QStringLiteral("project_open"), QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_I))),
      m_sourceRock(action(QStringLiteral("modules/vorn_2015/Vorn_SourceRock_Import"),
                          QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_R))),
      m_gas(action(QStringLiteral("modules/vorn_2015/Vorn_Isotopes"),
                   QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_G))),
      m_custom(action(QStringLiteral("modules/vorn_2015/Vorn_CustomImport"),
                      QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_U))),
      m_qualityCheck(action(QStringLiteral("modules/vorn_2015/Vorn_SourceRock_QAQC"),
                            QKeySequence(Qt::CTRL + Qt::Key_Q + Qt::SHIFT))),
      m_export(action(QStringLiteral("export"))),
      m_find(action(QStringLiteral("search"), QKeySequence::Find)),
      m_quit(action(QStringLiteral("close_project"), QKeySequence::Quit)),
      m_guide(action(QStringLiteral("help"))),
      m_helpHere(action(QStringLiteral("help"), QKeySequence(Qt::Key_F1))),
      m_about(action(QStringLiteral("info"))) {
    buildMenus(projects, qualityCheck);
    connectModules(imports, qualityCheck);
    buildStartBar(projects);
    buildLanguages(language);
    buildLooks(look);
    translate();
}

QAction* MainMenu::action(const QString& icon, const QKeySequence& shortcut) {
    auto* const made = new QAction(TLineIcon::icon(icon), {}, this);
    made->setShortcut(shortcut);
    return made;
}

void MainMenu::buildMenus(const ProjectCommands& projects, const QualityCheck& qualityCheck) {
    m_project->addActions({projects.newAction(), projects.openAction(), projects.serverAction()});
    m_project->addMenu(projects.recentMenu());
    m_project->addActions({projects.exampleAction(), projects.backupAction(), projects.serverCopyAction()});
    m_project->addSeparator();
    m_project->addAction(m_quit);

    const ProjectTree& tree = m_window.tree();
    m_objects->addActions({tree.openAction(), tree.sendAction(), tree.exportAction()});
    m_objects->addSeparator();
    m_objects->addActions({tree.renameAction(), tree.removeAction()});
    m_objects->addSeparator();
    m_objects->addAction(m_find);

    m_modules->addActions({m_files, m_folder});
    m_modules->addSeparator();
    m_modules->addActions({m_sourceRock, m_gas, m_custom});
    m_modules->addSeparator();
    m_modules->addActions({m_qualityCheck, m_export});
    m_window.menuBar()->insertMenu(m_view->menuAction(), qualityCheck.actions().menu());
    m_view->addMenu(m_languages);
    m_view->addMenu(m_looks);
    m_help->addActions({m_guide, m_helpHere, m_about});

    connect(m_files, &QAction::triggered, this, &MainMenu::filesRequested);
    connect(m_folder, &QAction::triggered, this, &MainMenu::folderRequested);
    connect(m_quit, &QAction::triggered, &m_window, &QWidget::close);
    connect(m_find, &QAction::triggered, &m_window.tree(), &ProjectTree::focusFilter);
    connect(m_guide, &QAction::triggered, this, [this] { emit helpRequested(0); });
    connect(m_helpHere, &QAction::triggered, this, &MainMenu::helpHereRequested);
    connect(m_about, &QAction::triggered, this, &MainMenu::showAbout);
}

void MainMenu::connectModules(ImportModules& imports, QualityCheck& qualityCheck) {
    const auto tie = [&imports](const QAction* entry, ImportModules::Kind kind) {
        connect(entry, &QAction::triggered, &imports, [&imports, kind] { imports.start(kind); });
    };
    tie(m_sourceRock, ImportModules::Kind::SourceRock);
    tie(m_gas, ImportModules::Kind::Gas);
    tie(m_custom, ImportModules::Kind::Custom);
    connect(m_qualityCheck, &QAction::triggered, &qualityCheck, &QualityCheck::start);
    connect(m_export, &QAction::triggered, &qualityCheck, &QualityCheck::exportForLearning);
}

void MainMenu::buildStartBar(const ProjectCommands& projects) {
    VKRibbonBar* const bar = m_window.ribbon().startBar();
    m_projectGroup = bar->addGroup({});
    m_projectGroup->addActionButton(projects.newAction());
    m_projectGroup->addActionButton(projects.openAction());
    m_projectGroup->addActionButton(projects.recentMenu()->menuAction())
        ->setPopupMode(QToolButton::InstantPopup);
    m_projectGroup->addActionButton(projects.exampleAction());
    m_projectGroup->addActionButton(projects.backupAction());
    m_moduleGroup = bar->addGroup({});
    for (QAction* const module : {m_files, m_sourceRock, m_gas, m_custom, m_qualityCheck}) {
        m_moduleGroup->addActionButton(module);
    }
    m_helpGroup = bar->addGroup({});
    m_helpGroup->addActionButton(m_guide);
}

void MainMenu::buildLanguages(LanguageSwitch& language) {
    m_languages->setIcon(TLineIcon::icon(QStringLiteral("language")));
    const auto add = [this, &language](const char* name, LanguageSwitch::Language choice) {
        QAction* const entry = m_languages->addAction(QString::fromUtf8(name));
        entry->setCheckable(true);
        entry->setActionGroup(m_languageChoice);
        entry->setChecked(language.language() == choice);
        connect(entry, &QAction::triggered, &language, [&language, choice] { language.choose(choice); });
        connect(&language, &LanguageSwitch::languageChanged, entry,
                [entry, &language, choice] { entry->setChecked(language.language() == choice); });
    };
    // Each in its own tongue, so that who is lost finds the way.
    add("English", LanguageSwitch::Language::English);
    add("Français", LanguageSwitch::Language::French);
}

void MainMenu::buildLooks(LookSwitch& look) {
    const auto add = [this, &look](LookSwitch::Scheme scheme) {
        QAction* const entry = m_looks->addAction(QString());
        entry->setCheckable(true);
        entry->setActionGroup(m_lookChoice);
        entry->setChecked(look.scheme() == scheme);
        connect(entry, &QAction::triggered, &look, [&look, scheme] { look.choose(scheme); });
        connect(&look, &LookSwitch::schemeChanged, entry,
                [entry, &look, scheme] { entry->setChecked(look.scheme() == scheme); });
        return entry;
    };
    m_desktopLook = add(LookSwitch::Scheme::Desktop);
    m_light = add(LookSwitch::Scheme::Light);
    m_dark = add(LookSwitch::Scheme::Dark);
}

void MainMenu::translate() {
    m_project->setTitle(tr("&Project", "&Projet"));
    m_objects->setTitle(tr("&Data", "&Données"));
    m_modules->setTitle(tr("&Modules", "&Modules"));
    m_view->setTitle(tr("&View", "&Affichage"));
    m_languages->setTitle(tr("&Language", "&Langue"));
    m_looks->setTitle(tr("L&ook", "Appa&rence"));
    m_desktopLook->setText(tr("As the desktop", "Comme le bureau"));
    m_light->setText(tr("Light", "Claire"));
    m_dark->setText(tr("Dark", "Sombre"));
    m_help->setTitle(tr("&Help", "A&ide"));
    m_projectGroup->setTitle(tr("Project", "Projet"));
    m_moduleGroup->setTitle(tr("Modules", "Modules"));
    m_helpGroup->setTitle(tr("Help", "Aide"));
    m_files->setText(tr("Import files…", "Importer des fichiers…"));
    m_files->setIconText(tr("Import…", "Importer…")); // short on buttons
    m_files->setToolTip(tr("Bring files of any kind in; each goes to the module that reads it",
                           "Importer des fichiers de tout type ; chacun va au module qui le lit"));
    m_folder->setText(tr("Import a folder…", "Importer un dossier…"));
    m_sourceRock->setText(tr("Source rock import", "Import roche mère"));
    m_sourceRock->setToolTip(tr("Bring raw Rock-Eval files and tables of source rocks into the project",
                                "Importer des fichiers Rock-Eval bruts et des tableaux de roches mères"));
    m_gas->setText(tr("Gas import", "Import gaz"));
    m_gas->setToolTip(
        tr("Bring tables of gas analyses into the project", "Importer des tableaux d'analyses de gaz"));
    m_custom->setText(tr("Custom import", "Import personnalisé"));
    m_custom->setToolTip(
        tr("Bring tables of any columns into the project", "Importer des tableaux de colonnes quelconques"));
    m_qualityCheck->setText(tr("Quality check", "Contrôle qualité"));
    m_qualityCheck->setToolTip(
        tr("Grade analyses as good, double or flat", "Évaluer les analyses : bonne, double ou plate"));
    m_export->setText(tr("Export for machine learning", "Exporter pour l'apprentissage automatique"));
    m_find->setText(tr("Find", "Rechercher"));
    m_quit->setText(tr("Quit", "Quitter"));
    m_guide->setText(tr("User guide", "Guide d'utilisation"));
    m_guide->setIconText(tr("Guide", "Guide"));
    m_helpHere->setText(tr("Help on what has the focus", "Aide sur l'élément actif"));
    m_about->setText(tr("About", "À propos"));
}

void MainMenu::showAbout() {
    QMessageBox::about(
        &m_window, tr("About", "À propos"),
        tr("<b>Vorn workbench %1</b><br>Imports and grades pyrolysis curves.<br>Made with Qt %2 "
           "and Qwt.",
           "<b>Atelier Vorn %1</b><br>Importe et évalue des courbes de pyrolyse.<br>Réalisé avec Qt "
           "%2 et Qwt.")
            .arg(QStringLiteral(VORN_VERSION), QString::fromLatin1(qVersion())));
}

#pragma once

#include <QKeySequence>
#include <QObject>

class ImportModules;
class LanguageSwitch;
class LookSwitch;
class MainWindow;
class ProjectCommands;
class QAction;
class QActionGroup;
class QMenu;
class QualityCheck;
class VKRibbonGroup;

/// The menus, and the ribbon's start tab with the same actions as buttons.
class MainMenu : public QObject {
    Q_OBJECT

public:
    /// All of them outlive this object, which belongs to the window.
    MainMenu(MainWindow& window, const ProjectCommands& projects, ImportModules& imports,
             QualityCheck& qualityCheck, LanguageSwitch& language, LookSwitch& look);

public slots:
    void translate();

signals:
    /// Files, or a folder of them, are to be imported.
    void filesRequested();
    void folderRequested();
    void helpRequested(int helpId);
    /// The page of what has the focus.
    void helpHereRequested();

private:
    QAction* action(const QString& icon, const QKeySequence& shortcut = {});
    void buildMenus(const ProjectCommands& projects, const QualityCheck& qualityCheck);
    void connectModules(ImportModules& imports, QualityCheck& qualityCheck);
    void buildStartBar(const ProjectCommands& projects);
    void buildLanguages(LanguageSwitch& language);
    void buildLooks(LookSwitch& look);
    void showAbout();

    MainWindow& m_window;
    QMenu* m_project;
    QMenu* m_objects;
    QMenu* m_modules;
    QMenu* m_view;
    QMenu* m_languages;
    QMenu* m_looks;
    QMenu* m_help;
    QActionGroup* m_languageChoice;
    QActionGroup* m_lookChoice;
    QAction* m_files;
    QAction* m_folder;
    QAction* m_sourceRock;
    QAction* m_gas;
    QAction* m_custom;
    QAction* m_qualityCheck;
    QAction* m_export;
    QAction* m_find;
    QAction* m_quit;
    QAction* m_desktopLook = nullptr;
    QAction* m_light = nullptr;
    QAction* m_dark = nullptr;
    QAction* m_guide;
    QAction* m_helpHere;
    QAction* m_about;
    VKRibbonGroup* m_projectGroup = nullptr;
    VKRibbonGroup* m_moduleGroup = nullptr;
    VKRibbonGroup* m_helpGroup = nullptr;
};

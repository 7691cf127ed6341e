#include "ExampleProject.h"
#include "HelpId.h"
#include "HelpPage.h"
#include "LogPanel.h"
#include "ProjectTree.h"
#include "TDatabase.h"
#include "TableView.h"
#include "VKDataModel.h"
#include "VKError.h"
#include "VKListViewSignal.h"
#include "VKObject2Analysis.h"
#include "VKRibbon.h"
#include "VKRibbonBar.h"
#include "VKTreeWidget.h"
#include "WorkbenchFixture.h"
#include "Workspace.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QMenuBar>
#include <QSettings>
#include <QSplitter>
#include <QStandardPaths>
#include <QTest>
#include <QTextBlock>
#include <QToolButton>
#include <QTreeView>

using Window = WorkbenchFixture;

TEST_F(Window, remembers_its_size_its_language_and_the_project) {
    workbench->projects().create(path("lab.vornproj"));
    workbench->language().choose(LanguageSwitch::Language::French);
    workbench->window().resize(903, 607);
    const auto columns = [this] { return workbench->window().findChild<QSplitter*>("columns"); };
    columns()->setSizes({250, 600});
    const QList<int> sizes = columns()->sizes();
    workbench->window().close();
    start();
    workbench->projectCommands().openAtStart();
    EXPECT_EQ(workbench->window().size(), QSize(903, 607));
    EXPECT_EQ(columns()->sizes(), sizes);
    EXPECT_EQ(LanguageSwitch::remembered(), LanguageSwitch::Language::French);
    EXPECT_TRUE(workbench->window().windowTitle().startsWith("lab "));
    EXPECT_EQ(ProjectMgr::recentProjects(), QStringList(path("lab.vornproj")));
}

TEST_F(Window, what_cannot_be_opened_is_named_and_the_open_project_stays) {
    workbench->projects().create(path("lab.vornproj"));
    QFile other(path("other.vornproj"));
    ASSERT_TRUE(other.open(QIODevice::WriteOnly));
    other.write("no database at all");
    other.close();
    workbench->projectCommands().openProject(other.fileName());
    ASSERT_EQ(errors().size(), 1);
    EXPECT_TRUE(errors()[0].contains("other.vornproj"));
    EXPECT_EQ(project().path(), path("lab.vornproj"));
}

TEST_F(Window, a_new_project_takes_the_place_of_an_old_file_once_it_is_whole_and_never_of_the_open_one) {
    workbench->projects().create(path("old.vornproj"), &ExampleProject::fill);
    EXPECT_THROW(workbench->projects().create(path("old.vornproj")), VKError);
    EXPECT_GE(project().analyses().size(), 24);
    workbench->projects().create(path("other.vornproj"));
    const auto fails = [](TechDB::TDatabase&) { throw VKError("the disk is full"); };
    EXPECT_THROW(workbench->projects().create(path("old.vornproj"), fails), VKError);
    workbench->projects().open(path("old.vornproj"));
    EXPECT_GE(project().analyses().size(), 24) << "still the old one";
    workbench->projects().open(path("other.vornproj"));
    auto elsewhere = TechDB::TDatabase::open(path("old.vornproj"));
    EXPECT_THROW(workbench->projects().create(path("old.vornproj")), VKError) << "open in another window";
    EXPECT_EQ(elsewhere->problems(), QStringList());
    elsewhere.reset();
    workbench->projects().create(path("old.vornproj"));
    EXPECT_TRUE(project().analyses().isEmpty());
}

TEST_F(Window, the_first_start_makes_the_example_project_and_the_next_finds_it) {
    QFile::remove(
        QDir(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)).filePath("Example.vornproj"));
    workbench->projectCommands().openAtStart();
    ASSERT_NE(workbench->projects().projectDatabase(), nullptr);
    const QStringList files = QDir(VORN_EXAMPLES).entryList({"*.S00", "*.s00"}, QDir::Files);
    EXPECT_EQ(project().analyses().size(), files.size());
    const auto* const first = project().getAnalysis("good-clean-01.S00");
    project().renameAnalysis(first->key(), "renamed");
    QSettings().clear();
    start();
    workbench->projectCommands().openAtStart();
    EXPECT_NE(project().getAnalysis("renamed"), nullptr);
    EXPECT_TRUE(errors().isEmpty());
}

TEST_F(Window, what_is_selected_in_the_tree_opens_as_a_table_and_goes_to_the_quality_check) {
    workbench->projects().create(path("lab.vornproj"), &ExampleProject::fill);
    tree().findChild<QLineEdit*>()->setText("double-clean");
    tree().findChild<QTreeView*>()->selectAll();
    tree().openAction()->trigger();
    const auto* const table = dynamic_cast<const TableView*>(workspace().currentPage());
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->model()->rowCount(), 1264);
    EXPECT_EQ(table->windowTitle(), "double-clean-01.S00");
    tree().sendAction()->trigger();
    ASSERT_TRUE(workbench->qualityCheck().isOpen());
    ASSERT_EQ(workbench->qualityCheck().list()->topLevelItemCount(), 1);
    EXPECT_EQ(workbench->qualityCheck().list()->topLevelItem(0)->background(0).color(), QColor("orange"));
}

TEST_F(Window, what_another_window_stored_shows_when_one_comes_back) {
    workbench->projects().create(path("lab.vornproj"), &ExampleProject::fill);
    const auto other = TechDB::TDatabase::open(path("lab.vornproj"));
    tree().findChild<QLineEdit*>()->setText("other window");
    other->addAnalysis("from the other window", {}, TAnalysisData({0, 1, 2}, {1, 2, 1}));
    tree().findChild<QTreeView*>()->selectAll();
    EXPECT_TRUE(tree().selectedObjects().isEmpty());
    QApplication::setActiveWindow(&workbench->window());
    QEvent back(QEvent::ActivationChange);
    QCoreApplication::sendEvent(&workbench->window(), &back);
    tree().findChild<QTreeView*>()->selectAll();
    EXPECT_EQ(tree().selectedObjects().size(), 1);
}

TEST_F(Window, help_opens_the_guide_at_the_modules_page_and_follows_nothing_outside) {
    ApplicationInterface::returnMe()->showHelp(HelpId::qualityCheck);
    settle();
    auto* const page = dynamic_cast<HelpPage*>(workspace().currentPage());
    ASSERT_NE(page, nullptr);
    EXPECT_EQ(page->textCursor().block().text(), "The quality check");
    EXPECT_FALSE(
        page->loadResource(QTextDocument::ImageResource, QUrl("http://example.org/a.png")).isValid());
    EXPECT_FALSE(page->loadResource(QTextDocument::ImageResource, QUrl("file:///etc/passwd")).isValid());
    emit page->anchorClicked(QUrl("http://example.org"));
    emit page->anchorClicked(QUrl("#curves"));
    EXPECT_EQ(page->textCursor().block().text(), "Curves");
}

TEST_F(Window, f1_turns_the_guide_to_the_page_of_what_has_the_focus_above_a_dialog_as_well) {
    QApplication::setActiveWindow(&workbench->window());
    const auto heading = [](HelpPage* page) { return page->textCursor().block().text(); };
    const auto f1 = [this](QWidget* focus) {
        focus->setFocus();
        QTest::keyClick(focus, Qt::Key_F1);
        settle();
        return workspace().findChild<HelpPage*>();
    };
    HelpPage* const page = f1(tree().findChild<QTreeView*>());
    ASSERT_NE(page, nullptr);
    EXPECT_EQ(heading(page), "The project tree");
    EXPECT_EQ(f1(workbench->window().log().findChild<QAbstractItemView*>()), page)
        << "one guide, which turns";
    EXPECT_EQ(heading(page), "Messages");
    workbench->imports().start(ImportModules::Kind::Gas);
    f1(workbench->imports().bar(ImportModules::Kind::Gas)->findChild<VKTreeWidget*>());
    EXPECT_EQ(heading(page), "Importing");
    ApplicationInterface::returnMe()->showHelp(4711);
    settle();
    EXPECT_TRUE(page->textCursor().atStart()) << "no such page: the guide's start";

    QDialog dialog(&workbench->window());
    QLineEdit line(&dialog);
    dialog.open();
    QTest::keyClick(&line, Qt::Key_F1);
    ASSERT_NE(dialog.findChild<HelpPage*>(), nullptr) << "within reach while the dialog is open";
    EXPECT_TRUE(dialog.findChild<HelpPage*>()->isVisible());
}

TEST_F(Window, every_button_of_the_start_tab_is_also_in_a_menu) {
    QList<const QAction*> inMenus;
    const QList<QMenu*> menus = workbench->window().findChildren<QMenu*>();
    for (const QMenu* const menu : menus) {
        inMenus.append(menu->menuAction());
        for (const QAction* const action : menu->actions()) {
            inMenus.append(action);
        }
    }
    const VKRibbonBar* const bar = workbench->window().ribbon().startBar();
    const QList<QToolButton*> buttons = bar->findChildren<QToolButton*>();
    ASSERT_GE(buttons.size(), 7);
    for (const QToolButton* const button : buttons) {
        EXPECT_TRUE(inMenus.contains(button->defaultAction())) << button->text().toStdString();
    }
}

TEST_F(Window, all_menus_speak_french_when_asked_and_english_again) {
    const auto titles = [this] {
        QStringList texts;
        for (const QAction* const menu : workbench->window().menuBar()->actions()) {
            texts.append(menu->text());
        }
        return texts;
    };
    const QStringList english = titles();
    workbench->language().choose(LanguageSwitch::Language::French);
    EXPECT_EQ(titles(), QStringList({"&Projet", "&Données", "&Modules", "&Contrôle", "&Affichage", "A&ide"}));
    workbench->language().choose(LanguageSwitch::Language::English);
    EXPECT_EQ(titles(), english);
}

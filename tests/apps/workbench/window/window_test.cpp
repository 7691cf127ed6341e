#include "ExampleProject.h"
#include "Guide.h"
#include "HelpId.h"
#include "HelpPage.h"
#include "LogPanel.h"
#include "ProjectTree.h"
#include "TDatabase.h"
#include "VKError.h"
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
#include <QMenu>
#include <QRegularExpression>
#include <QSettings>
#include <QSplitter>
#include <QStandardPaths>
#include <QTest>
#include <QTextBlock>
#include <QToolButton>
#include <QTreeView>

namespace {

using Language = LanguageSwitch::Language;
using Window = WorkbenchFixture;

QString heading(const HelpPage& page) {
    return page.textCursor().block().text();
}

/// What a guide is built of, whatever its language: its headings, the rows of its tables, and where its links
/// lead; those within it by the number of the heading, -1 for none.
struct Shape {
    QStringList anchors; // of the headings
    QStringList parts;

    explicit Shape(const QString& text) {
        for (const QString& line : text.split('\n').filter(QRegularExpression("^#"))) {
            anchors.append(Guide::anchorOf(line.section(' ', 1)));
        }
        static const QRegularExpression part(R"(^#+ |^\||\]\(([^)]*)\))",
                                             QRegularExpression::MultilineOption);
        for (auto found = part.globalMatch(text); found.hasNext();) {
            const auto match = found.next();
            const QString target = match.captured(1);
            EXPECT_TRUE(!target.endsWith(".png") || QFile::exists(Guide::folder() + target))
                << target.toStdString();
            parts.append(target.isEmpty()         ? match.captured()
                         : target.startsWith('#') ? QString::number(anchors.indexOf(target.mid(1)))
                                                  : QString(target).replace(".fr.png", ".png"));
        }
    }
};

class Guides : public WorkbenchFixture {
protected:
    Shape shapeIn(Language language) {
        workbench->language().choose(language);
        return Shape(Guide::text());
    }
    const Shape english = shapeIn(Language::English);
    const Shape french = shapeIn(Language::French);
};

} // namespace

TEST_F(Window, remembers_its_size_its_language_and_the_project) {
    workbench->projects().create(path("lab.vornproj"));
    workbench->language().choose(Language::French);
    workbench->window().resize(903, 607);
    const auto columns = [this] { return workbench->window().findChild<QSplitter*>("columns"); };
    columns()->setSizes({250, 600});
    const QList<int> sizes = columns()->sizes();
    workbench->window().close();
    start();
    workbench->projectCommands().openAtStart();
    EXPECT_EQ(workbench->window().size(), QSize(903, 607));
    EXPECT_EQ(columns()->sizes(), sizes);
    EXPECT_EQ(LanguageSwitch::remembered(), Language::French);
    EXPECT_TRUE(workbench->window().windowTitle().startsWith("lab "));
    EXPECT_EQ(ProjectMgr::recentProjects(), QStringList(path("lab.vornproj")));
}

TEST_F(Window, what_cannot_be_opened_is_named_and_the_open_project_stays) {
    workbench->projects().create(path("lab.vornproj"));
    QFile other(path("other.vornproj"));
    ASSERT_TRUE(other.open(QIODevice::WriteOnly) && other.write("no database at all") > 0);
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

TEST_F(Window, f1_turns_the_guide_to_the_page_of_what_has_the_focus_above_a_dialog_as_well) {
    QApplication::setActiveWindow(&workbench->window());
    const auto f1 = [this](QWidget* focus) {
        focus->setFocus();
        QTest::keyClick(focus, Qt::Key_F1);
        settle();
        return workspace().findChild<HelpPage*>();
    };
    HelpPage* const page = f1(tree().findChild<QTreeView*>());
    ASSERT_NE(page, nullptr);
    EXPECT_EQ(heading(*page), "The project tree");
    EXPECT_EQ(f1(workbench->window().log().findChild<QAbstractItemView*>()), page)
        << "one guide, which turns";
    EXPECT_EQ(heading(*page), "Messages");
    workbench->imports().start(ImportModules::Kind::Gas);
    f1(workbench->imports().bar(ImportModules::Kind::Gas)->findChild<VKTreeWidget*>());
    EXPECT_EQ(heading(*page), "Importing");
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
    QList<QAction*> inMenus;
    for (const QMenu* const menu : workbench->window().findChildren<QMenu*>()) {
        inMenus += menu->actions() << menu->menuAction();
    }
    const auto buttons = workbench->window().ribbon().startBar()->findChildren<QToolButton*>();
    ASSERT_GE(buttons.size(), 7);
    for (const QToolButton* const button : buttons) {
        EXPECT_TRUE(inMenus.contains(button->defaultAction())) << button->text().toStdString();
    }
}

TEST_F(Guides, have_the_same_chapters_pictures_tables_and_links_and_none_leads_nowhere) {
    ASSERT_GT(english.anchors.size(), 8);
    EXPECT_EQ(english.parts, french.parts);
    EXPECT_FALSE(english.parts.contains("-1"));
}

TEST_F(Guides, have_a_page_for_every_number_and_the_open_one_keeps_its_page_and_follows_nothing_outside) {
    const auto place = [this](const Shape& shape, Language language, int helpId) {
        workbench->language().choose(language);
        return shape.anchors.indexOf(Guide::anchorOf(Guide::headingFor(helpId)));
    };
    for (const int helpId : {HelpId::projects, HelpId::tree, HelpId::wizard, HelpId::curves, HelpId::tables,
                             HelpId::messages, HelpId::importModules, HelpId::qualityCheck}) {
        const int inEnglish = place(english, Language::English, helpId);
        EXPECT_GT(inEnglish, 0) << helpId;
        EXPECT_EQ(place(french, Language::French, helpId), inEnglish) << helpId;
    }
    ApplicationInterface::returnMe()->showHelp(HelpId::qualityCheck);
    settle();
    auto* const page = dynamic_cast<HelpPage*>(workspace().currentPage());
    ASSERT_NE(page, nullptr);
    EXPECT_EQ(heading(*page), "Le contrôle qualité");
    workbench->language().choose(Language::English);
    settle();
    EXPECT_EQ(heading(*page), "The quality check");
    const QTextCursor atTop = page->cursorForPosition(QPoint(40, page->fontMetrics().height()));
    EXPECT_EQ(atTop.block().text(), "The quality check") << "where one begins to read";
    for (const char* const outside : {"http://example.org/a.png", "file:///etc/passwd"}) {
        EXPECT_FALSE(page->loadResource(QTextDocument::ImageResource, QUrl(outside)).isValid());
    }
    emit page->anchorClicked(QUrl("http://example.org#curves"));
    EXPECT_EQ(heading(*page), "The quality check");
    emit page->anchorClicked(QUrl("#curves"));
    EXPECT_EQ(heading(*page), "Curves");
}

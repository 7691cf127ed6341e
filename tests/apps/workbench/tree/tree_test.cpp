#include "ModalAnswers.h"
#include "ProjectView.h"
#include "TreeFixture.h"
#include "VKObject2Decoder.h"

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QMessageBox>
#include <QMimeData>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTimer>

#include <memory>

#include <malloc.h>

Q_DECLARE_METATYPE(const VKObject2*)

namespace {

using Objects = QList<const VKObject2*>;

TEST_F(TreeTest, sorts_names_with_numbers_in_the_order_of_the_numbers_and_keeps_it) {
    for (const char* name : {"S 10", "s 9", "S 100", "R 2"}) {
        add(name);
    }
    addDataset("Set", {"11", "2"});
    EXPECT_EQ(names(), QStringList({"Datasets", ".Set", "..2", "..11", "Analyses", ".R 2", ".s 9", ".S 10",
                                    ".S 100"}));
    database->renameAnalysis(database->getAnalysis("S 100")->key(), "S 1");
    addDataset("Set 3", {});
    EXPECT_EQ(names(), QStringList({"Datasets", ".Set", "..2", "..11", ".Set 3", "Analyses", ".R 2", ".S 1",
                                    ".s 9", ".S 10"}));
}

TEST_F(TreeTest, shows_date_and_grouped_number_of_points_and_where_it_is_narrow_the_name) {
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    std::vector<float> curve(2401);
    curve.back() = 1;
    database->addAnalysis("A", "pyrolysis", {curve, curve});
    const QModelIndex analysis = find("A");
    EXPECT_EQ(analysis.siblingAtColumn(2).data().toString(), "2.401");
    EXPECT_EQ(analysis.siblingAtColumn(1).data().toString(),
              database->analyses().first().created.toLocalTime().date().toString("dd.MM.yy"));
    QLocale::setDefault(QLocale::c());
    EXPECT_FALSE(view().isColumnHidden(1));
    tree.resize(120, 400);
    settle();
    EXPECT_TRUE(view().isColumnHidden(1) && view().isColumnHidden(2));
    EXPECT_EQ(view().columnWidth(0), view().viewport()->width());
    EXPECT_EQ(view().horizontalScrollBar()->maximum(), 0);
}

TEST_F(TreeTest, what_remains_stays_selected_and_open_while_the_project_changes) {
    const qint64 first = add("B")->key();
    add("C");
    settle();
    view().grab(); // lays the rows out, as what is on the screen has been
    const qint64 set = addDataset("Set", {"one"})->key();
    EXPECT_TRUE(view().isExpanded(find("Datasets"))) << "the section came before another";
    EXPECT_FALSE(view().isExpanded(find("Set")));
    view().grab();
    view().expand(find("Set"));
    select({"B", "C", "Set"});
    view().collapse(find("Analyses"));

    database->renameAnalysis(first, "Z");
    database->renameWell(set, "Y");
    remove("C");
    database->addSample(set, "two", {{"r"}, {"c"}, {1.0}, {}});
    addDataset("A set", {});
    add("A");
    settle();
    EXPECT_EQ(selectedNames(), QStringList({"Y", "Z"}));
    EXPECT_TRUE(view().isExpanded(find("Y")));
    EXPECT_FALSE(view().isExpanded(find("A set")));
    EXPECT_FALSE(view().isExpanded(find("Analyses")));
    EXPECT_EQ(shown().rowCount(find("Y")), 2);
}

TEST_F(TreeTest, rereads_what_another_window_has_written) {
    add("ours");
    settle();
    const auto other = TechDB::TDatabase::open(path());
    addTo(*other, "theirs");
    other->removeAnalysis(other->getAnalysis("ours")->key());
    EXPECT_EQ(names(), QStringList({"Analyses", ".ours"}));
    select({"ours"});
    EXPECT_TRUE(tree.selectedObjects().isEmpty()) << "an object that is gone";
    tree.refresh();
    EXPECT_EQ(names(), QStringList({"Analyses", ".theirs"}));
}

TEST_F(TreeTest, takes_nothing_of_one_project_for_the_next_and_says_why_it_is_empty) {
    EXPECT_TRUE(view().hint().contains("holds nothing yet"));
    addDataset("Set", {"one"});
    add("A");
    select({"A"});
    filter().setText("a");
    const auto next = TechDB::TDatabase::create(folder.filePath("next.vornproj"));
    addTo(*next, "N");
    tree.setProject(next.get());
    EXPECT_EQ(names(), QStringList({"Analyses", ".N"}));
    EXPECT_TRUE(tree.selectedObjects().isEmpty());
    EXPECT_TRUE(view().isExpanded(find("Analyses")));
    add("late");
    EXPECT_EQ(names(), QStringList({"Analyses", ".N"}));
    filter().setText("<b>q");
    EXPECT_EQ(names(), QStringList());
    EXPECT_TRUE(view().hint().contains("<b>q"));
    tree.setProject(nullptr);
    EXPECT_EQ(names(), QStringList());
    EXPECT_FALSE(filter().isEnabled());
    EXPECT_TRUE(view().hint().contains("No project is open"));
}

TEST_F(TreeTest, filter_keeps_hits_in_either_case_with_what_they_belong_to) {
    addDataset("Basin", {"north", "south"});
    addDataset("Other", {"basin 2", "x"});
    add("BASIN 7");
    add("well");
    view().expand(find("Basin"));
    select({"well", "BASIN 7"});
    QTest::keyClicks(&filter(), "basin");
    EXPECT_EQ(names(), QStringList({"Datasets", ".Basin", "..north", "..south", ".Other", "..basin 2",
                                    "Analyses", ".BASIN 7"}));
    EXPECT_TRUE(view().isExpanded(find("Other")));
    EXPECT_EQ(selectedNames(), QStringList({"BASIN 7"})) << "what isn't shown isn't selected";

    remove("BASIN 7");
    database->renameWell(database->getWell("Basin")->key(), "Ridge");
    add("peak");
    EXPECT_EQ(names(), QStringList({"Datasets", ".Other", "..basin 2"}));
    QTest::keyClick(&filter(), Qt::Key_Escape);
    EXPECT_EQ(names().size(), 10);
    EXPECT_FALSE(view().isExpanded(find("Other")));
    EXPECT_TRUE(view().isExpanded(find("Ridge"))) << "as it was before";
}

TEST_F(TreeTest, filters_leave_no_memory_behind) {
    QStringList samples;
    for (int i = 0; i < 30; ++i) {
        samples.append(QString::number(i));
    }
    addDataset("Basin", samples);
    const auto heapAfter = [this](int filters) {
        for (int i = 0; i < filters; ++i) {
            for (const char* text : {"no such name", "1"}) {
                filter().setText(text);
                settle();
            }
        }
        return mallinfo2().uordblks; // zero under the address sanitizer
    };
    const auto before = heapAfter(50);
    EXPECT_LT(heapAfter(300), before + 60'000);
}

TEST_F(TreeTest, a_drag_carries_the_selected_objects_from_top_to_bottom) {
    const VKObject2* const set = addDataset("Set", {"one"});
    const VKObject2* const ten = add("10");
    const VKObject2* const two = add("2");
    select({"10", "2", "one", "Set", "Analyses"});
    const std::unique_ptr<QMimeData> data(shown().mimeData(view().selectionModel()->selectedIndexes()));
    ASSERT_TRUE(data);
    EXPECT_EQ(VKObject2Decoder::decodeObject(data.get()), Objects({set, two, ten}));
    EXPECT_FALSE(shown().flags(find("one")) & Qt::ItemIsDragEnabled);
    EXPECT_FALSE(shown().flags(find("Analyses")) & Qt::ItemIsDragEnabled);
    EXPECT_EQ(shown().mimeData({find("one")}), nullptr);
}

TEST_F(TreeTest, commands_are_there_for_what_is_selected) {
    const VKObject2* const set = addDataset("Set", {"one"});
    const VKObject2* const analysis = add("A");
    qRegisterMetaType<Objects>("QList<const VKObject2*>");
    QSignalSpy opened(&tree, &ProjectTree::openRequested);
    QSignalSpy sent(&tree, &ProjectTree::sendRequested);
    QSignalSpy exported(&tree, &ProjectTree::exportRequested);
    const auto enabledFor = [this](const QStringList& selected) {
        select(selected);
        std::string letters;
        for (const QAction* action : {tree.openAction(), tree.renameAction(), tree.removeAction(),
                                      tree.exportAction(), tree.sendAction()}) {
            letters += action->isEnabled() ? '1' : '0';
        }
        return letters;
    };
    EXPECT_EQ(enabledFor({}), "00000");
    EXPECT_EQ(enabledFor({"Analyses"}), "00000");
    EXPECT_EQ(enabledFor({"one"}), "10000");
    QTest::keyClick(&view(), Qt::Key_Return);
    ASSERT_EQ(opened.size(), 1);
    EXPECT_EQ(opened.takeFirst().at(0).value<Objects>(), Objects({set})) << "a sample opens its dataset";

    EXPECT_EQ(enabledFor({"Set"}), "11110");
    EXPECT_EQ(enabledFor({"A", "Set"}), "10111");
    tree.exportAction()->trigger();
    EXPECT_EQ(exported.value(0).value(0).value<Objects>(), Objects({set, analysis}));
    QTest::keyClick(&view(), Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(sent.value(0).value(0).value<Objects>(), Objects({analysis}));

    QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, view().visualRect(find("A")).center());
    QTest::mouseDClick(view().viewport(), Qt::LeftButton, {}, view().visualRect(find("A")).center());
    EXPECT_EQ(opened.value(0).value(0).value<Objects>(), Objects({analysis}));
}

TEST_F(TreeTest, renames_in_place_and_keeps_the_name_where_the_new_one_is_refused) {
    add("A");
    add("B");
    const auto rename = [this](const QString& from, const QString& to) {
        select({from});
        QTest::keyClick(&view(), Qt::Key_F2);
        auto* const editor = view().viewport()->findChild<QLineEdit*>();
        ASSERT_TRUE(editor);
        editor->setText(to);
        QTest::keyClick(editor, Qt::Key_Return);
        settle();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    };
    rename("A", " C ");
    EXPECT_EQ(names(), QStringList({"Analyses", ".B", ".C"}));
    EXPECT_EQ(selectedNames(), QStringList({"C"}));
    rename("C", "C");
    EXPECT_TRUE(reported.isEmpty());
    for (const QString& refused : {QString("B"), QString(), QString(300, 'x')}) {
        rename("C", refused);
    }
    EXPECT_EQ(reported.size(), 3);
    EXPECT_TRUE(reported.value(0).contains("already stored"));
    EXPECT_EQ(names(), QStringList({"Analyses", ".B", ".C"}));
    EXPECT_TRUE(database->getAnalysis("C"));
}

TEST_F(TreeTest, deletes_all_that_is_selected_once_the_user_agrees) {
    for (int i = 1; i <= 12; ++i) {
        add("<i>" + QString::number(i));
    }
    addDataset("Set", {"one"});
    add("kept");
    settle();
    view().selectAll();
    view().selectionModel()->select(find("kept"), QItemSelectionModel::Deselect | QItemSelectionModel::Rows);
    QString question;
    const auto pressDelete = [&](const QStringList& answer) {
        ModalAnswers answers(answer);
        answers.setObserver([&](QWidget& asked) {
            const auto& box = dynamic_cast<QMessageBox&>(asked);
            EXPECT_EQ(box.textFormat(), Qt::PlainText);
            question = box.text() + box.informativeText();
            if (!answer.isEmpty()) {
                remove("<i>5"); // while the question stands
            }
        });
        tree.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&tree));
        QTest::keyClick(&view(), Qt::Key_Delete);
    };
    pressDelete({});
    EXPECT_EQ(database->analyses().size(), 13) << "the default is to keep";
    EXPECT_TRUE(question.contains("these 13"));
    EXPECT_TRUE(question.contains("Set\n<i>1\n<i>2")) << question.toStdString();
    EXPECT_TRUE(question.contains("and 5 more"));

    const QSignalSpy changes(database.get(), &TechDB::TDatabase::changed);
    pressDelete({"Delete"});
    EXPECT_EQ(names(), QStringList({"Analyses", ".kept"}));
    EXPECT_EQ(changes.size(), 2) << "one for all that was left";
    EXPECT_TRUE(reported.isEmpty());
}

TEST_F(TreeTest, hostile_names_are_shown_as_they_are_written) {
    const QString markup = "<b>x</b><img src='file:///x'>&amp;";
    const QString rightToLeft = QString::fromUtf8("\u202eتحليل 12");
    const QString lines = QString("two") + QChar(QChar::LineSeparator) + "lines";
    for (const QString& name : {markup, rightToLeft, lines, QString(255, 'W')}) {
        add(name);
    }
    EXPECT_TRUE(find(rightToLeft).isValid());
    EXPECT_FALSE(view().visualRect(find(markup)).isEmpty());
    EXPECT_EQ(view().visualRect(find("two lines")).height(), view().visualRect(find(markup)).height());
    EXPECT_FALSE(view().grab().isNull());
    EXPECT_EQ(view().horizontalScrollBar()->maximum(), 0);
    select({"two lines"});
    EXPECT_EQ(selectedNames(), QStringList({lines}));
}

TEST_F(TreeTest, the_menu_key_shows_the_commands_at_the_current_row) {
    add("A");
    select({"A"});
    QPoint place;
    QTimer::singleShot(5, &tree, [&] {
        QWidget* const menu = QApplication::activePopupWidget();
        ASSERT_TRUE(menu);
        EXPECT_TRUE(menu->actions().contains(tree.sendAction()));
        place = menu->pos();
        menu->close();
    });
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, {});
    QApplication::sendEvent(view().viewport(), &event);
    EXPECT_EQ(place, view().viewport()->mapToGlobal(view().visualRect(find("A")).bottomLeft()));
}

} // namespace

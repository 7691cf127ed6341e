#include "ProjectView.h"
#include "TreeFixture.h"
#include "VKObject2Decoder.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTimer>

#include <memory>

#include <malloc.h>

Q_DECLARE_METATYPE(const VKObject2*)

namespace {

using Objects = QList<const VKObject2*>;

/// Answers the next message box and keeps what it said.
class Answer {
public:
    explicit Answer(QMessageBox::StandardButton button) {
        QObject::connect(&m_timer, &QTimer::timeout, [this, button] {
            if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                m_timer.stop();
                question = box->text() + box->informativeText();
                format = box->textFormat();
                defaultIsNo = box->defaultButton() == box->button(QMessageBox::No);
                box->button(button)->click();
            }
        });
        m_timer.start(5);
    }
    QString question;
    Qt::TextFormat format = Qt::AutoText;
    bool defaultIsNo = false;

private:
    QTimer m_timer;
};

TEST_F(TreeTest, filter_keeps_hits_in_either_case_with_what_they_belong_to) {
    QAbstractItemModelTester tester(&shown(), QAbstractItemModelTester::FailureReportingMode::Warning);
    addDataset(QStringLiteral("Basin"), {QStringLiteral("north"), QStringLiteral("south")});
    addDataset(QStringLiteral("Other"), {QStringLiteral("basin 2"), QStringLiteral("x")});
    add(QStringLiteral("BASIN 7"));
    add(QStringLiteral("well"));
    settle();
    select({"well", "BASIN 7"});
    QTest::keyClicks(&filter(), QStringLiteral("basin"));
    EXPECT_EQ(names(), QStringList({"Datasets", ".Basin", "..north", "..south", ".Other", "..basin 2",
                                    "Analyses", ".BASIN 7"}));
    EXPECT_TRUE(view().isExpanded(find(QStringLiteral("Other"))));
    EXPECT_EQ(selectedNames(), QStringList({"BASIN 7"})) << "what isn't shown isn't selected";

    database->removeAnalysis(database->getAnalysis(QStringLiteral("BASIN 7"))->key());
    database->renameWell(database->getWell(QStringLiteral("Basin"))->key(), QStringLiteral("Ridge"));
    add(QStringLiteral("peak"));
    settle();
    EXPECT_EQ(names(), QStringList({"Datasets", ".Other", "..basin 2"}));
    QTest::keyClick(&filter(), Qt::Key_Escape);
    EXPECT_EQ(names().size(), 10);
    EXPECT_FALSE(view().isExpanded(find(QStringLiteral("Other"))));
}

TEST_F(TreeTest, filters_leave_no_memory_behind) {
    QStringList samples;
    for (int i = 0; i < 30; ++i) {
        samples.append(QString::number(i));
    }
    addDataset(QStringLiteral("Basin"), samples);
    settle();
    const auto heapAfter = [this](int filters) {
        for (int i = 0; i < filters; ++i) {
            filter().setText(QStringLiteral("no such name"));
            settle();
            filter().setText(QStringLiteral("1"));
            settle();
        }
        return mallinfo2().uordblks; // zero under the address sanitizer
    };
    const auto before = heapAfter(50);
    EXPECT_LT(heapAfter(300), before + 60'000);
}

TEST_F(TreeTest, rows_that_come_leave_branches_as_they_were) {
    add(QStringLiteral("well"));
    settle();
    view().grab(); // lays the rows out, as what is on the screen has been
    addDataset(QStringLiteral("Ridge"), {QStringLiteral("north")});
    settle();
    EXPECT_TRUE(view().isExpanded(find(QStringLiteral("Datasets")))) << "the section came before another";
    EXPECT_FALSE(view().isExpanded(find(QStringLiteral("Ridge"))));
    view().grab();
    view().expand(find(QStringLiteral("Ridge")));
    addDataset(QStringLiteral("Basin"), {QStringLiteral("south")});
    settle();
    EXPECT_TRUE(view().isExpanded(find(QStringLiteral("Ridge"))));
    EXPECT_FALSE(view().isExpanded(find(QStringLiteral("Basin"))));
}

TEST_F(TreeTest, an_empty_place_says_why) {
    const auto& place = *tree.findChild<ProjectView*>();
    EXPECT_TRUE(place.hint().contains(QStringLiteral("holds nothing yet")));
    add(QStringLiteral("A"));
    settle();
    filter().setText(QStringLiteral("<b>q"));
    EXPECT_EQ(shown().rowCount(), 0);
    EXPECT_TRUE(place.hint().contains(QStringLiteral("<b>q")));
    tree.setProject(nullptr);
    EXPECT_TRUE(place.hint().contains(QStringLiteral("No project is open")));
}

TEST_F(TreeTest, a_drag_carries_the_selected_objects_from_top_to_bottom) {
    const VKObject2* const set = addDataset(QStringLiteral("Set"), {QStringLiteral("one")});
    const VKObject2* const ten = add(QStringLiteral("10"));
    const VKObject2* const two = add(QStringLiteral("2"));
    settle();
    view().expandAll();
    select({"10", "2", "one", "Set", "Analyses"});
    const std::unique_ptr<QMimeData> data(shown().mimeData(view().selectionModel()->selectedIndexes()));
    ASSERT_TRUE(data);
    EXPECT_EQ(VKObject2Decoder::decodeObject(data.get()), Objects({set, two, ten}));
    EXPECT_FALSE(shown().flags(find(QStringLiteral("one"))) & Qt::ItemIsDragEnabled);
    EXPECT_FALSE(shown().flags(find(QStringLiteral("Analyses"))) & Qt::ItemIsDragEnabled);
    EXPECT_EQ(shown().mimeData({find(QStringLiteral("one"))}), nullptr);
}

TEST_F(TreeTest, commands_are_there_for_what_is_selected) {
    const VKObject2* const set = addDataset(QStringLiteral("Set"), {QStringLiteral("one")});
    const VKObject2* const analysis = add(QStringLiteral("A"));
    settle();
    qRegisterMetaType<Objects>("QList<const VKObject2*>");
    QSignalSpy opened(&tree, &ProjectTree::openRequested);
    QSignalSpy sent(&tree, &ProjectTree::sendRequested);
    QSignalSpy exported(&tree, &ProjectTree::exportRequested);
    const auto enabled = [this] {
        QString letters;
        for (QAction* action : {tree.openAction(), tree.renameAction(), tree.removeAction(),
                                tree.exportAction(), tree.sendAction()}) {
            letters += QLatin1Char(action->isEnabled() ? '1' : '0');
        }
        return letters.toStdString();
    };
    EXPECT_EQ(enabled(), "00000");
    view().expandAll();
    select({"Analyses"});
    EXPECT_EQ(enabled(), "00000");
    select({"one"});
    EXPECT_EQ(enabled(), "10000");
    tree.activateWindow();
    view().setFocus();
    QTest::keyClick(&view(), Qt::Key_Return);
    ASSERT_EQ(opened.size(), 1);
    EXPECT_EQ(opened.takeFirst().at(0).value<Objects>(), Objects({set})) << "a sample opens its dataset";

    select({"A", "Set"});
    EXPECT_EQ(enabled(), "10111");
    tree.exportAction()->trigger();
    EXPECT_EQ(exported.value(0).value(0).value<Objects>(), Objects({set, analysis}));
    QTest::keyClick(&view(), Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(sent.value(0).value(0).value<Objects>(), Objects({analysis}));

    QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, view().visualRect(find("A")).center());
    QTest::mouseDClick(view().viewport(), Qt::LeftButton, {}, view().visualRect(find("A")).center());
    EXPECT_EQ(opened.value(0).value(0).value<Objects>(), Objects({analysis}));
}

TEST_F(TreeTest, renames_in_place_and_keeps_the_name_where_the_new_one_is_refused) {
    add(QStringLiteral("A"));
    add(QStringLiteral("B"));
    settle();
    tree.activateWindow();
    view().setFocus();
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
    rename(QStringLiteral("A"), QStringLiteral(" C "));
    EXPECT_EQ(names(), QStringList({"Analyses", ".B", ".C"}));
    EXPECT_EQ(selectedNames(), QStringList({"C"}));
    rename(QStringLiteral("C"), QStringLiteral("C"));
    EXPECT_TRUE(reported.isEmpty());
    rename(QStringLiteral("C"), QStringLiteral("B"));
    rename(QStringLiteral("C"), QString());
    rename(QStringLiteral("C"), QString(300, QLatin1Char('x')));
    EXPECT_EQ(reported.size(), 3);
    EXPECT_TRUE(reported.value(0).contains(QStringLiteral("already stored")));
    EXPECT_EQ(names(), QStringList({"Analyses", ".B", ".C"}));
    EXPECT_TRUE(database->getAnalysis(QStringLiteral("C")));
}

TEST_F(TreeTest, deletes_all_that_is_selected_once_the_user_agrees) {
    for (int i = 1; i <= 12; ++i) {
        add(QStringLiteral("<i>%1").arg(i));
    }
    addDataset(QStringLiteral("Set"), {QStringLiteral("one")});
    add(QStringLiteral("kept"));
    settle();
    view().selectAll();
    view().selectionModel()->select(find(QStringLiteral("kept")),
                                    QItemSelectionModel::Deselect | QItemSelectionModel::Rows);
    tree.activateWindow();
    view().setFocus();
    const Answer no(QMessageBox::No);
    QTest::keyClick(&view(), Qt::Key_Delete);
    EXPECT_EQ(database->analyses().size(), 13);
    EXPECT_TRUE(no.defaultIsNo);
    EXPECT_EQ(no.format, Qt::PlainText);
    EXPECT_TRUE(no.question.contains(QStringLiteral("Set\n<i>1\n<i>2"))) << no.question.toStdString();
    EXPECT_TRUE(no.question.contains(QStringLiteral("and 5 more")));

    QSignalSpy changes(database.get(), &TechDB::TDatabase::changed);
    const Answer yes(QMessageBox::Yes);
    QTimer::singleShot(0, &tree, [this] { // while the question stands
        database->removeAnalysis(database->getAnalysis(QStringLiteral("<i>5"))->key());
    });
    tree.removeAction()->trigger();
    EXPECT_TRUE(yes.question.contains(QStringLiteral("these 13")));
    EXPECT_EQ(names(), QStringList({"Analyses", ".kept"}));
    EXPECT_EQ(changes.size(), 2) << "one for all that was left";
    EXPECT_TRUE(reported.isEmpty());
}

TEST_F(TreeTest, hostile_names_are_shown_as_they_are_written) {
    const QString markup = QStringLiteral("<b>x</b><img src='file:///x'>&amp;");
    const QString rightToLeft = QString::fromUtf8("\u202eتحليل 12");
    const QString lines = QStringLiteral("two") + QChar(QChar::LineSeparator) + QStringLiteral("lines");
    const QString endless(255, QLatin1Char('W'));
    for (const QString& name : {markup, rightToLeft, lines, endless}) {
        add(name);
    }
    settle();
    EXPECT_TRUE(find(markup).isValid());
    EXPECT_TRUE(find(rightToLeft).isValid());
    EXPECT_TRUE(find(QStringLiteral("two lines")).isValid());
    const int height = view().visualRect(find(markup)).height();
    EXPECT_EQ(view().visualRect(find(QStringLiteral("two lines"))).height(), height);
    EXPECT_FALSE(view().grab().isNull());
    EXPECT_EQ(view().horizontalScrollBar()->maximum(), 0);

    select({"two lines"});
    EXPECT_EQ(selectedNames(), QStringList({lines}));
}

TEST_F(TreeTest, the_menu_key_shows_the_commands_at_the_current_row) {
    add(QStringLiteral("A"));
    settle();
    select({"A"});
    QPoint place;
    bool sends = false;
    QTimer::singleShot(5, &tree, [&] {
        QWidget* const menu = QApplication::activePopupWidget();
        ASSERT_TRUE(menu);
        place = menu->pos();
        sends = menu->actions().contains(tree.sendAction());
        menu->close();
    });
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, {});
    QApplication::sendEvent(view().viewport(), &event);
    EXPECT_TRUE(sends);
    EXPECT_EQ(place, view().viewport()->mapToGlobal(view().visualRect(find("A")).bottomLeft()));
}

TEST_F(TreeTest, a_narrow_tree_keeps_room_for_names) {
    add(QStringLiteral("A"));
    settle();
    EXPECT_FALSE(view().isColumnHidden(1));
    tree.resize(120, 400);
    settle();
    EXPECT_TRUE(view().isColumnHidden(1));
    EXPECT_TRUE(view().isColumnHidden(2));
    EXPECT_EQ(view().columnWidth(0), view().viewport()->width());
    EXPECT_EQ(view().horizontalScrollBar()->maximum(), 0);
}

} // namespace

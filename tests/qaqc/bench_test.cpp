#include "QualityCheckFixture.h"

#include "CheckActions.h"
#include "CheckFilter.h"
#include "CheckSession.h"

#include <QAction>
#include <QTest>
#include <QToolButton>

using gradereport::GradeKind;

/// Four grades in a mixed order, worked on by keys and menu.
class AtTheBench : public QualityCheckTest {
protected:
    const QStringList names{"good-clean-01.S00", "none-decay-01.S00", "double-clean-01.S00",
                            "flat-broad-01.S00", "good-clean-02.S00", "four-peaks-01.S00"};

    AtTheBench() { dropNamed(names); }

    CheckActions& actions() { return workbench->qualityCheck().actions(); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QApplication::setActiveWindow(&workbench->window());
        QTest::keyClick(&workbench->window(), key, modifiers);
        settle();
    }
    QStringList rowsThatAre(bool (QTreeWidgetItem::*state)() const, bool wanted) {
        QStringList texts;
        for (int row = 0; row < list().topLevelItemCount(); ++row) {
            const QTreeWidgetItem& item = *list().topLevelItem(row);
            texts += (item.*state)() == wanted ? QStringList(item.text(0)) : QStringList();
        }
        return texts;
    }
    QStringList selected() { return rowsThatAre(&QTreeWidgetItem::isSelected, true); }
    QStringList shown() { return rowsThatAre(&QTreeWidgetItem::isHidden, false); }
    QStringList sortedOnScreen() {
        QStringList sorted = onScreen();
        sorted.sort();
        return sorted;
    }
    QString filterText() { return list().findChild<QToolButton*>()->text(); }
};

TEST_F(AtTheBench, keys_walk_through_the_list_and_the_curve_follows) {
    press(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(onScreen(), QStringList(names[0]));
    press(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(onScreen(), QStringList(names[1]));
    press(Qt::Key_Up, Qt::AltModifier);
    press(Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(onScreen(), QStringList(names[0])) << "stays at the end";
    select({names[2], names[4]});
    press(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(selected(), QStringList(names[5])) << "behind the last of several";
    actions().onlyAction(GradeKind::good)->trigger();
    press(Qt::Key_Up, Qt::AltModifier);
    press(Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(selected(), QStringList(names[0])) << "only among what is shown";
}

TEST_F(AtTheBench, keys_select_all_of_a_grade_and_tell_the_red_ones_apart) {
    press(Qt::Key_F5);
    EXPECT_EQ(selected(), QStringList({names[0], names[4]}));
    EXPECT_EQ(sortedOnScreen(), QStringList({names[0], names[4]}));
    press(Qt::Key_F6);
    EXPECT_EQ(selected(), QStringList(names[2]));
    press(Qt::Key_F7);
    EXPECT_EQ(selected(), QStringList(names[3])) << "without the one of no peak and the one of four";
    press(Qt::Key_F7, Qt::ShiftModifier);
    press(Qt::Key_F8);
    EXPECT_EQ(selected(), QStringList(names[1])) << "though the filter had hidden it";
    EXPECT_EQ(shown(), names);
}

TEST_F(AtTheBench, the_filter_keeps_to_a_grade_while_sliders_move_and_analyses_come) {
    select(names);
    press(Qt::Key_F5, Qt::ShiftModifier);
    EXPECT_EQ(shown(), QStringList({names[0], names[4]}));
    EXPECT_EQ(sortedOnScreen(), shown()) << "what was hidden is no longer selected";
    EXPECT_EQ(filterText(), "Good: 2 of 6");
    dropNamed({"good-clean-03.S00", "double-noisy-01.S00"});
    EXPECT_EQ(filterText(), "Good: 3 of 8");
    move(height(), lastPosition(height()));
    ASSERT_LT(shown().size(), 3);
    for (int row = 0; row < list().topLevelItemCount(); ++row) {
        const QTreeWidgetItem& item = *list().topLevelItem(row);
        EXPECT_EQ(item.isHidden(), item.background(0).color() != QColor(Qt::green)) << row;
    }
    EXPECT_TRUE(onScreen().contains(names[0])) << "a curve that is looked at stays";
    delete list().takeTopLevelItem(0);
    EXPECT_TRUE(filterText().endsWith(" of 7")) << filterText().toStdString();
    press(Qt::Key_F9, Qt::ShiftModifier);
    EXPECT_EQ(shown().size(), 7);
    EXPECT_EQ(filterText(), "All");
}

TEST_F(AtTheBench, actions_end_with_the_check_and_begin_anew_without_a_filter) {
    actions().onlyAction(GradeKind::flat)->trigger();
    editor()->closeRequested();
    settle();
    EXPECT_FALSE(actions().nextAction()->isEnabled());
    workbench->qualityCheck().start();
    EXPECT_TRUE(actions().allAction()->isChecked());
    dropNamed(names);
    EXPECT_EQ(shown(), names);
    press(Qt::Key_F6, Qt::ShiftModifier);
    workbench->language().choose(LanguageSwitch::Language::French);
    settle();
    EXPECT_EQ(filterText(), "Doubles : 1 sur 6");
}

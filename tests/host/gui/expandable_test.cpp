#include "VKRibbonGroupExpandable.h"

#include "VKRibbon.h"
#include "VKRibbonBar.h"

#include <QBoxLayout>
#include <QMainWindow>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

namespace {

// A main window with one module bar in front, whose group holds a content of 600 x 200.
class ExpandableGroup : public testing::Test {
protected:
    ExpandableGroup() : bar(new VKRibbonBar("Module")), group(new VKRibbonGroupExpandable("Module", bar)) {
        bar->mainLayout()->addWidget(group);
        content->setMinimumSize(600, 200);
        group->setContent(content);
        ribbon->addBar(bar, true, true);
        window.setMenuWidget(ribbon);
        window.resize(900, 600);
        window.show();
        window.activateWindow();
        QCoreApplication::processEvents();
    }

    QToolButton* openButton() const { return group->findChild<QToolButton*>(); }

    QMainWindow window;
    VKRibbon* ribbon = new VKRibbon;
    VKRibbonBar* bar;
    VKRibbonGroupExpandable* group;
    QPointer<QWidget> content = new QWidget;
};

} // namespace

TEST_F(ExpandableGroup, pinned_content_stands_in_the_ribbon_and_folded_content_above_the_workspace) {
    EXPECT_TRUE(content->isVisible());
    EXPECT_TRUE(bar->isAncestorOf(content));
    group->setPinState(false);
    EXPECT_FALSE(content->isVisible());

    QTest::mouseClick(openButton(), Qt::LeftButton);
    ASSERT_TRUE(group->isOpen());
    EXPECT_TRUE(content->isVisible());
    EXPECT_FALSE(bar->isAncestorOf(content));
    EXPECT_GE(content->mapTo(&window, QPoint()).y(), bar->mapTo(&window, QPoint(0, bar->height())).y());

    QTest::mouseClick(openButton(), Qt::LeftButton);
    EXPECT_FALSE(content->isVisible());
    QTest::mouseClick(openButton(), Qt::LeftButton);
    group->setPinState(true);
    EXPECT_TRUE(bar->isAncestorOf(content));
    EXPECT_TRUE(content->isVisible());
}

TEST_F(ExpandableGroup, escape_and_another_tab_fold_it_up) {
    group->setPinState(false);
    group->openPopup();
    QTest::keyClick(content, Qt::Key_Escape);
    EXPECT_FALSE(group->isOpen());
    group->openPopup();
    ribbon->setCurrentBar(ribbon->startBar());
    EXPECT_FALSE(group->isOpen());
    EXPECT_FALSE(content->isVisible());
    ribbon->setCurrentBar(bar);
    group->openPopup();
    EXPECT_TRUE(content->isVisible());
}

TEST_F(ExpandableGroup, the_overlay_keeps_inside_the_window) {
    group->setPinState(false);
    group->openPopup();
    window.resize(400, 300);
    QCoreApplication::processEvents();
    const auto* overlay = window.findChild<RibbonPopup*>();
    ASSERT_NE(overlay, nullptr);
    EXPECT_TRUE(window.rect().contains(overlay->geometry()));
}

TEST_F(ExpandableGroup, going_while_it_is_open_leaves_nothing_behind) {
    group->setPinState(false);
    group->openPopup();
    delete bar;
    EXPECT_TRUE(content.isNull());
    EXPECT_EQ(window.findChild<RibbonPopup*>(), nullptr);
}

TEST_F(ExpandableGroup, a_bar_taken_out_while_open_takes_its_content_along) {
    group->setPinState(false);
    group->openPopup();
    ribbon->removeBar(bar);
    EXPECT_TRUE(bar->isAncestorOf(content));
    delete bar;
    EXPECT_TRUE(content.isNull());
}

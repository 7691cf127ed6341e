#include "HelpInterface.h"
#include "ModuleEditorAbstract.h"
#include "ModuleObserver.h"
#include "VKError.h"
#include "VKRibbon.h"
#include "VKRibbonGroup.h"
#include "VKRibbonGroupExpandable.h"
#include "VKRibbonModuleBar.h"

#include <QAction>
#include <QBoxLayout>
#include <QMainWindow>
#include <QPointer>
#include <QSignalSpy>
#include <QTabBar>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

namespace {

// As a module does it: the operation of the base is a signal of its own.
class SignallingBar : public VKRibbonBar {
    Q_OBJECT
public:
    using VKRibbonBar::VKRibbonBar;
signals:
    void closeRequested() override;
};

QAbstractButton* closeButton(const VKRibbon& ribbon, int index) {
    return qobject_cast<QAbstractButton*>(ribbon.findChild<QTabBar*>()->tabButton(index, QTabBar::RightSide));
}

// A main window with one module bar in front, whose group holds a content of 600 x 200 and is folded up.
class ExpandableGroup : public testing::Test {
protected:
    ExpandableGroup() {
        bar->mainLayout()->addWidget(group);
        content->setMinimumSize(600, 200);
        group->setContent(content);
        ribbon->addBar(bar, true, true);
        window.setMenuWidget(ribbon);
        window.resize(900, 600);
        window.show();
        window.activateWindow();
        QCoreApplication::processEvents();
        pinnedInTheBar = content->isVisible() && bar->isAncestorOf(content);
        group->setPinState(false);
    }

    QMainWindow window;
    VKRibbon* ribbon = new VKRibbon;
    VKRibbonBar* bar = new VKRibbonBar("Module");
    VKRibbonGroupExpandable* group = new VKRibbonGroupExpandable("Module", bar);
    QPointer<QWidget> content = new QWidget;
    bool pinnedInTheBar = false;
};

class Observer : public ModuleObserver {
public:
    void actionTriggered(int number) override {
        triggered.append(number);
        ModuleObserver::actionTriggered(number);
    }
    void help() override { page = attachedHelp() ? attachedHelp()->getIdForHelp() : 0; }

    QList<int> triggered;
    int page = -1;
};

class Editor : public VKRibbonModuleBar, public HelpInterface, public ModuleEditorAbstract {
public:
    Editor() : VKRibbonModuleBar("Module") {}
    int getIdForHelp() const override { return 124; }
    using VKRibbonModuleBar::addGenericActions;
    using VKRibbonModuleBar::createDescriptionGroup;

    QToolButton* button(const QString& text) const {
        for (auto* button : actionGroup()->findChildren<QToolButton*>()) {
            if (button->text() == text)
                return button;
        }
        return nullptr;
    }
};

} // namespace

TEST(Ribbon, a_bar_comes_with_its_title_and_goes_without_a_parent) {
    VKRibbon ribbon;
    ribbon.show();
    QList<VKRibbonBar*> fronts;
    QObject::connect(&ribbon, &VKRibbon::currentBarChanged,
                     [&](VKRibbonBar* front) { fronts.append(front); });
    VKRibbonBar bar("Source rock ");
    ribbon.addBar(&bar, true, true);
    const auto* tabs = ribbon.findChild<QTabBar*>();
    EXPECT_EQ(tabs->tabText(1), "Source rock");
    EXPECT_EQ(bar.title(), "Source rock ");
    bar.setTitle("Oil & gas");
    EXPECT_EQ(tabs->tabText(1), "Oil && gas");
    EXPECT_EQ(ribbon.currentBar(), &bar);
    EXPECT_TRUE(bar.isVisible());

    ribbon.addBar(&bar, true, true);
    EXPECT_EQ(tabs->count(), 2) << "a bar is in the ribbon once";

    ribbon.removeBar(&bar);
    EXPECT_EQ(bar.parent(), nullptr);
    EXPECT_FALSE(bar.isVisible());
    EXPECT_EQ(ribbon.currentBar(), ribbon.startBar());
    EXPECT_EQ(fronts, QList<VKRibbonBar*>({&bar, ribbon.startBar()}));

    ribbon.addBar(&bar, true, false);
    EXPECT_EQ(ribbon.currentBar(), ribbon.startBar());
    ribbon.setCurrentBar(&bar);
    EXPECT_TRUE(bar.isVisible()) << "a bar can come again";
    ribbon.removeBar(&bar);
}

TEST(Ribbon, the_start_bar_stays) {
    VKRibbon ribbon;
    VKRibbonBar stranger;
    for (VKRibbonBar* bar : {ribbon.startBar(), &stranger, static_cast<VKRibbonBar*>(nullptr)})
        ribbon.removeBar(bar);
    ribbon.addBar(nullptr, true, true);
    EXPECT_EQ(ribbon.bars(), QList<VKRibbonBar*>({ribbon.startBar()}));
    EXPECT_EQ(closeButton(ribbon, 0), nullptr);
    ribbon.closeCurrentBar();
    EXPECT_EQ(ribbon.bars().count(), 1);
}

TEST(Ribbon, only_the_users_wish_asks_a_bar_to_close) {
    VKRibbon ribbon;
    auto* bar = new SignallingBar("Import");
    QSignalSpy asked(bar, &SignallingBar::closeRequested);
    ribbon.addBar(bar, true, true);
    ribbon.show();
    bar->close();
    EXPECT_EQ(asked.count(), 0);
    QTest::mouseClick(closeButton(ribbon, 1), Qt::LeftButton);
    EXPECT_EQ(asked.count(), 1);
    ribbon.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&ribbon));
    QTest::keyClick(&ribbon, Qt::Key_W, Qt::ControlModifier);
    EXPECT_EQ(asked.count(), 2);
    EXPECT_EQ(ribbon.bars().count(), 2) << "taking the bar out is up to who was asked";

    auto* fixed = new SignallingBar("Fixed");
    ribbon.addBar(fixed, false, true);
    QSignalSpy fixedAsked(fixed, &SignallingBar::closeRequested);
    ribbon.closeCurrentBar();
    EXPECT_EQ(fixedAsked.count(), 0);
}

TEST(Ribbon, a_bar_may_be_taken_out_and_deleted_while_it_is_asked) {
    VKRibbon ribbon;
    ribbon.show();
    QPointer<SignallingBar> bar(new SignallingBar("Import"));
    ribbon.addBar(bar, true, true);
    QObject::connect(bar.data(), &SignallingBar::closeRequested, &ribbon, [&] {
        ribbon.removeBar(bar);
        bar->deleteLater();
    });
    QTest::mouseClick(closeButton(ribbon, 1), Qt::LeftButton);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(bar.isNull());
    EXPECT_EQ(ribbon.bars().count(), 1);
}

TEST(Ribbon, a_bar_deleted_in_place_takes_its_tab_along) {
    VKRibbon ribbon;
    auto* first = new VKRibbonBar("First");
    auto* second = new VKRibbonBar("Second");
    ribbon.addBar(first, true, false);
    ribbon.addBar(second, true, true);
    delete first;
    EXPECT_EQ(ribbon.currentBar(), second);
    delete second;
    EXPECT_EQ(ribbon.findChild<QTabBar*>()->count(), 1);
    EXPECT_EQ(ribbon.currentBar(), ribbon.startBar());
}

TEST(Ribbon, it_is_as_high_as_the_bar_in_front) {
    VKRibbon ribbon;
    ribbon.startBar()->addGroup("Project")->insertButton("Open", {}, 0, VKRibbonGroup::LargeButton);
    auto* tall = new VKRibbonBar("Tall");
    auto* content = new QWidget;
    content->setMinimumSize(900, 400);
    tall->addGroup("Content")->addWidget(content);
    ribbon.addBar(tall, true, false);
    ribbon.resize(1200, 100);
    ribbon.show();
    QCoreApplication::processEvents();
    const int low = ribbon.sizeHint().height();
    EXPECT_LT(low, 250);
    QTest::keyClick(&ribbon, Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(ribbon.currentBar(), tall);
    QCoreApplication::processEvents();
    EXPECT_GT(ribbon.sizeHint().height(), 400);
    QTest::keyClick(&ribbon, Qt::Key_PageUp, Qt::ControlModifier);
    QCoreApplication::processEvents();
    EXPECT_EQ(ribbon.sizeHint().height(), low);
    EXPECT_LT(ribbon.minimumSizeHint().width(), 500) << "a narrow window scrolls the bar";
}

TEST_F(ExpandableGroup, pinned_content_stands_in_the_ribbon_and_folded_content_above_the_workspace) {
    EXPECT_TRUE(pinnedInTheBar);
    EXPECT_FALSE(content->isVisible());
    auto* const open = group->findChild<QToolButton*>();
    QTest::mouseClick(open, Qt::LeftButton);
    ASSERT_TRUE(group->isOpen());
    EXPECT_TRUE(content->isVisible());
    EXPECT_FALSE(bar->isAncestorOf(content));
    EXPECT_GE(content->mapTo(&window, QPoint()).y(), bar->mapTo(&window, QPoint(0, bar->height())).y());
    window.resize(400, 300);
    QCoreApplication::processEvents();
    EXPECT_TRUE(window.rect().contains(window.findChild<RibbonPopup*>()->geometry()));

    QTest::mouseClick(open, Qt::LeftButton);
    EXPECT_FALSE(content->isVisible());
    QTest::mouseClick(open, Qt::LeftButton);
    group->setPinState(true);
    EXPECT_TRUE(content->isVisible() && bar->isAncestorOf(content));
}

TEST_F(ExpandableGroup, escape_and_another_tab_fold_it_up) {
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

TEST_F(ExpandableGroup, a_bar_that_goes_or_is_taken_out_while_open_takes_its_content_along) {
    group->openPopup();
    ribbon->removeBar(bar);
    EXPECT_TRUE(bar->isAncestorOf(content));
    ribbon->addBar(bar, true, true);
    group->openPopup();
    delete bar;
    EXPECT_TRUE(content.isNull());
    EXPECT_EQ(window.findChild<RibbonPopup*>(), nullptr);
}

TEST(ModuleBar, a_modules_own_actions_reach_the_observer_by_number) {
    Observer observer;
    QAction late("Late");
    Editor bar;
    QAction first("First");
    QAction second("Second");
    bar.createActionGroup({{7, &second}, {3, &first}, {5, nullptr}});
    bar.registerObserver(&observer);
    bar.button("Second")->click();
    bar.button("First")->click();
    EXPECT_EQ(observer.triggered, QList<int>({7, 3}));

    bar.createActionGroup({{9, &late}});
    EXPECT_EQ(bar.button("First"), nullptr);
    first.trigger();
    late.trigger();
    EXPECT_EQ(observer.triggered, QList<int>({7, 3, 9}));
    bar.unregisterObserver();
    late.trigger();
    EXPECT_EQ(observer.triggered.count(), 3);
}

TEST(ModuleBar, generic_actions_open_when_the_module_says_so) {
    Observer observer;
    Editor bar;
    bar.createDescriptionGroup(-9999, true);
    EXPECT_EQ(bar.mainLayout()->indexOf(bar.actionGroup()), 1) << "the description stands before it";
    bar.addGenericActions(true, true);
    for (const char* text : {"Results", "Save", "Help"})
        EXPECT_FALSE(bar.button(text)->isEnabled()) << text << " without an observer";
    bar.registerObserver(&observer);
    EXPECT_FALSE(bar.button("Results")->isEnabled());
    EXPECT_TRUE(bar.button("Help")->isEnabled());
    observer.setActionEnabled(ModuleObserver::dataEditorAction, true);
    bar.button("Results")->click();
    bar.button("Help")->click();
    EXPECT_EQ(observer.triggered, QList<int>({98, 99}));
    EXPECT_EQ(observer.page, 124);
    bar.unregisterObserver();
    EXPECT_FALSE(bar.button("Results")->isEnabled());
    bar.button("Results")->click();
    EXPECT_EQ(observer.triggered.count(), 2);
    observer.help();
    EXPECT_EQ(observer.page, 0) << "the page went with the bar";
}

TEST(ModuleEditorAbstract, without_a_bar_it_says_so) {
    ModuleEditorAbstract editor;
    EXPECT_THROW(editor.createActionGroup({}), VKError);
    EXPECT_THROW(editor.unregisterObserver(), VKError);
}

#include "ribbon_test.moc"

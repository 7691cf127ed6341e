#include "VKRibbon.h"

#include "VKRibbonBar.h"
#include "VKRibbonGroup.h"

#include <QAbstractButton>
#include <QPointer>
#include <QSignalSpy>
#include <QTabBar>
#include <QTest>

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

#include "ribbon_test.moc"

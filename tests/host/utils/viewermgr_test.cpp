#include "Interfaces.h"
#include "VKModuleViewerMgr.h"
#include "VKViewer2DChroma.h"

#include <gtest/gtest.h>

#include <QTest>

#include <memory>

namespace {

class Manager : public VKModuleViewerMgr {
public:
    void slotDoubleClick(QWidget*) override { calls += "double"; }
    void slotAdd() override { calls += "add"; }
    void slotMove(const QPoint& at) override { calls += QString("move %1").arg(at.x()); }
    void slotDelete() override { calls += "delete"; }
    void slotSelect(const QPoint& at) override { calls += QString("select %1").arg(at.x()); }
    void slotRelease(const QPoint& at) override { calls += QString("release %1").arg(at.x()); }
    void slotKeyPress(QKeyEvent*) override { calls += "key"; }
    int getIdForHelp() const override { return 124; }

    QStringList take() { return std::exchange(calls, {}); }

    QStringList calls;
};

void useAll(QWidget& viewer) {
    const QPoint place(30, 5);
    QMouseEvent press(QEvent::MouseButtonPress, place, Qt::LeftButton, Qt::LeftButton, {});
    QMouseEvent move(QEvent::MouseMove, QPoint(31, 5), Qt::NoButton, Qt::LeftButton, {});
    QMouseEvent hover(QEvent::MouseMove, QPoint(31, 5), Qt::NoButton, Qt::NoButton, {});
    QMouseEvent release(QEvent::MouseButtonRelease, QPoint(32, 5), Qt::LeftButton, Qt::NoButton, {});
    QMouseEvent twice(QEvent::MouseButtonDblClick, place, Qt::LeftButton, Qt::LeftButton, {});
    QMouseEvent right(QEvent::MouseButtonPress, place, Qt::RightButton, Qt::RightButton, {});
    for (QMouseEvent* event : {&press, &move, &hover, &release, &twice, &right}) {
        QCoreApplication::sendEvent(&viewer, event);
    }
    for (const int key : {Qt::Key_Insert, Qt::Key_Delete, Qt::Key_A}) {
        QKeyEvent event(QEvent::KeyPress, key, {});
        QCoreApplication::sendEvent(&viewer, &event);
    }
}

const QStringList looking{"double", "key", "key", "key"};
const QStringList editing{"select 30", "move 31", "release 32", "double", "add", "delete", "key"};

} // namespace

TEST(ViewerMgr, hears_editing_only_where_it_is_connected_for_it_and_not_read_only) {
    Manager manager;
    TechPlot::VKViewer2DChroma viewer;
    useAll(viewer);
    EXPECT_TRUE(manager.take().isEmpty());
    EXPECT_TRUE(manager.connectToViewerConst(&viewer));
    useAll(viewer);
    EXPECT_EQ(manager.take(), looking);
    EXPECT_EQ(manager.selectedViewer(), &viewer);
    EXPECT_TRUE(manager.connectToViewer(&viewer));
    useAll(viewer);
    EXPECT_EQ(manager.take(), editing) << "connected twice, heard once";
    manager.setReadOnly(true);
    useAll(viewer);
    EXPECT_EQ(manager.take(), looking);
    manager.disconnectFromViewer(&viewer);
    manager.disconnectFromViewer(&viewer);
    useAll(viewer);
    EXPECT_TRUE(manager.take().isEmpty());
    EXPECT_FALSE(manager.connectToViewer(nullptr) || manager.connectToViewerConst(nullptr) ||
                 manager.connectToEditor(nullptr));
    manager.disconnectFromViewer(nullptr);
}

TEST(ViewerMgr, viewer_and_manager_may_go_in_either_order) {
    auto manager = std::make_unique<Manager>();
    auto gone = std::make_unique<TechPlot::VKViewer2DChroma>();
    TechPlot::VKViewer2DChroma survivor;
    manager->connectToViewer(gone.get());
    manager->connectToViewer(&survivor);
    useAll(*gone);
    gone.reset();
    EXPECT_EQ(manager->selectedViewer(), nullptr);
    manager->slotModuleClosing();
    manager->take();
    useAll(survivor);
    EXPECT_TRUE(manager->take().isEmpty());
    manager->connectToViewer(&survivor);
    manager.reset();
    useAll(survivor);
}

TEST(ViewerMgr, f1_opens_the_managers_page_if_there_is_an_application) {
    Manager manager;
    TechPlot::VKViewer2DChroma viewer;
    manager.connectToViewerConst(&viewer);
    QTest::keyClick(&viewer, Qt::Key_F1);
    Application application;
    QTest::keyClick(&viewer, Qt::Key_F1);
    EXPECT_EQ(application.pages, QList<int>({124}));
}

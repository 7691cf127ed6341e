#include "VKTreeWidget.h"

#include <QCoreApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>
#include <QUrl>

#include <gtest/gtest.h>

namespace {

// A drag over the tree's middle, as the window system delivers it: entering, moving, dropping.
class Drag {
public:
    Drag(VKTreeWidget& tree, const QMimeData& data) : m_viewport(tree.viewport()), m_data(data) {}

    bool enters() { return deliver<QDragEnterEvent>(); }
    bool moves() { return deliver<QDragMoveEvent>(); }
    bool drops() {
        QDropEvent event(QPointF(5, 5), Qt::CopyAction, &m_data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(m_viewport, &event);
        return event.isAccepted();
    }

private:
    template <typename Event>
    bool deliver() {
        Event event(QPoint(5, 5), Qt::CopyAction, &m_data, Qt::LeftButton, Qt::NoModifier);
        event.ignore();
        QCoreApplication::sendEvent(m_viewport, &event);
        return event.isAccepted();
    }

    QWidget* m_viewport;
    const QMimeData& m_data;
};

} // namespace

TEST(TreeWidget, dropped_files_arrive_as_local_paths_in_order) {
    VKTreeWidget tree;
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile("/data/second run é.S00"), QUrl("https://example.org/x.S00"),
                  QUrl::fromLocalFile("/data/a#1.R00")});
    Drag drag(tree, data);
    EXPECT_FALSE(drag.enters()) << "nobody wants files yet";

    QSignalSpy dropped(&tree, &VKTreeWidget::dataDroppped);
    EXPECT_TRUE(drag.enters());
    EXPECT_TRUE(drag.moves());
    EXPECT_TRUE(drag.drops());
    ASSERT_EQ(dropped.count(), 1);
    EXPECT_EQ(dropped.at(0).at(0).toStringList(), QStringList({"/data/second run é.S00", "/data/a#1.R00"}));
}

TEST(TreeWidget, other_data_is_up_to_the_listeners) {
    VKTreeWidget tree;
    QSignalSpy files(&tree, &VKTreeWidget::dataDroppped);
    QMimeData data;
    data.setData("application/x-own", "1");
    Drag drag(tree, data);
    EXPECT_FALSE(drag.enters());
    EXPECT_FALSE(drag.moves());

    QObject::connect(&tree, &VKTreeWidget::dragEnterCalled, [](QDragEnterEvent* event) { event->accept(); });
    QObject::connect(&tree, &VKTreeWidget::dragMoveCalled, [](QDragMoveEvent* event) { event->accept(); });
    QByteArray received;
    QObject::connect(&tree, &VKTreeWidget::dropCalled,
                     [&](QDropEvent* event) { received = event->mimeData()->data("application/x-own"); });
    EXPECT_TRUE(drag.enters());
    EXPECT_TRUE(drag.moves());
    EXPECT_TRUE(drag.drops());
    EXPECT_EQ(received, "1");
    EXPECT_EQ(files.count(), 0);
}

TEST(TreeWidget, keys_reach_every_cell_and_click_it) {
    VKTreeWidget tree;
    tree.setColumnCount(3);
    auto* first = new QTreeWidgetItem(&tree, {"a", "b", "c"});
    QList<int> clicked;
    QObject::connect(&tree, &QTreeWidget::itemClicked,
                     [&](QTreeWidgetItem*, int column) { clicked.append(column); });
    QTest::keyClick(&tree, Qt::Key_Space);
    EXPECT_TRUE(clicked.isEmpty()) << "no current item";
    tree.setCurrentItem(first, 0);
    for (int i = 0; i < 5; ++i)
        QTest::keyClick(&tree, Qt::Key_Right);
    QTest::keyClick(&tree, Qt::Key_Return);
    EXPECT_EQ(clicked, QList<int>({2}));
    EXPECT_TRUE(first->isSelected());
}

#include "TFileButton.h"
#include "VKTreeWidget.h"

#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QDropEvent>
#include <QFileDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
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

TEST(TreeWidget, files_can_be_chosen_and_pasted_where_they_can_be_dropped) {
    VKTreeWidget tree;
    tree.resize(400, 120);
    QMimeData* const copied = new QMimeData;
    copied->setUrls({QUrl::fromLocalFile("/data/a.S00"), QUrl("https://example.org/x.S00")});
    QGuiApplication::clipboard()->setMimeData(copied);
    EXPECT_EQ(tree.findChild<TFileButton*>(), nullptr) << "nobody wants files yet";

    QSignalSpy dropped(&tree, &VKTreeWidget::dataDroppped);
    QTest::keyClick(&tree, Qt::Key_V, Qt::ControlModifier);
    auto* const button = tree.findChild<TFileButton*>();
    ASSERT_NE(button, nullptr);
    EXPECT_TRUE(tree.header()->geometry().contains(button->geometry()));
    QTimer::singleShot(0, [] {
        auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        dialog->findChild<QLineEdit*>()->setText(
            QFileInfo(QCoreApplication::applicationFilePath()).filePath());
        dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open)->click();
    });
    button->click();
    ASSERT_EQ(dropped.count(), 2);
    EXPECT_EQ(dropped.at(0).at(0).toStringList(), QStringList("/data/a.S00"));
    EXPECT_EQ(dropped.at(1).at(0).toStringList(), QStringList(QCoreApplication::applicationFilePath()));
    QGuiApplication::clipboard()->setText("/data/a.S00");
    QTest::keyClick(&tree, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(dropped.count(), 2) << "a text is no file";
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

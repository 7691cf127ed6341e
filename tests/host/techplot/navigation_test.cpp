#include "PlotFixture.h"
#include "TCursorOverlay.h"
#include "TMatrixBar.h"
#include "TViewRange.h"
#include <QAbstractScrollArea>
#include <QAction>
#include <QScrollBar>
#include <QTest>
#include <QToolButton>
#include <QWheelEvent>
#include <cmath>
#include <limits>

using namespace TechPlot;

class Navigation : public PlotTest {
protected:
    Navigation() : matrix(openMatrix(control)) {
        for (VKViewer2DChroma*& viewer : viewers) {
            viewer = new VKViewer2DChroma;
            add(matrix, viewer);
        }
        viewers[0]->insertPlotter(signal({0, 500, 1000}, {0, 100, 0}));
        viewers[1]->insertPlotter(signal({200, 700, 1400}, {0, 50, 0}));
        show(*matrix);
    }
    ~Navigation() override { control.closeEditor(true); }

    QWidget* canvas(int row) const { return viewers[row]->plot()->canvas(); }
    QPoint place(int row, double time, double value) const {
        return viewers[row]->plot()->toCanvas({time, value}).toPoint();
    }
    void drag(int row, const QPoint& from, const QPoint& to, Qt::KeyboardModifiers keys = {}) {
        QTest::mousePress(canvas(row), Qt::LeftButton, keys, from);
        QMouseEvent move(QEvent::MouseMove, to, canvas(row)->mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                         keys);
        QCoreApplication::sendEvent(canvas(row), &move);
        QTest::mouseRelease(canvas(row), Qt::LeftButton, keys, to);
        settle();
    }
    void wheel(int row, const QPoint& at, int turn, Qt::KeyboardModifiers keys) {
        QWheelEvent event(at, canvas(row)->mapToGlobal(at), {}, QPoint(0, turn), Qt::NoButton, keys,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(canvas(row), &event);
    }
    void fill(int count) {
        for (int i = 0; i < count; ++i) {
            auto* viewer = new VKViewer2DChroma;
            viewer->insertPlotter(signal({0, 1}, {0, 1}));
            add(matrix, viewer);
        }
        settle();
    }
    std::ptrdiff_t built() const {
        const auto plots = matrix->plots();
        return std::count_if(plots.begin(), plots.end(),
                             [](const VKViewer2D* each) { return each->isBuilt(); });
    }
    QRectF shown(int row) const { return viewers[row]->range().shown(); }

    TGraphicCtrl control;
    TEditorMatrix* matrix;
    VKViewer2DChroma* viewers[2] = {};
};

TEST_F(Navigation, the_rubber_band_zooms_to_what_it_covers_and_home_shows_all) {
    drag(0, place(0, 300, 80), place(0, 600, 20));
    EXPECT_NEAR(shown(0).left(), 300, 3);
    EXPECT_NEAR(shown(0).right(), 600, 3);
    EXPECT_NEAR(shown(0).top(), 20, 2);
    EXPECT_NEAR(shown(0).bottom(), 80, 2);
    EXPECT_NEAR(viewers[0]->plot()->axisInterval(QwtPlot::xBottom).minValue(), shown(0).left(), 1e-9);
    EXPECT_TRUE(viewers[1]->range().isHome()) << "axes are not linked";
    QTest::keyClick(canvas(0), Qt::Key_Home);
    EXPECT_TRUE(viewers[0]->range().isHome());
    drag(0, place(0, 300, 50), place(0, 600, 50) + QPoint(0, 3));
    EXPECT_NEAR(shown(0).width(), 300, 5);
    EXPECT_EQ(shown(0).height(), viewers[0]->range().home().height()) << "a flat band zooms in time alone";
    QTest::mouseDClick(canvas(0), Qt::LeftButton);
    EXPECT_TRUE(viewers[0]->range().isHome());
    drag(0, QPoint(50, 50), QPoint(52, 90));
    EXPECT_TRUE(viewers[0]->range().isHome()) << "a click is no band";
    QTest::mousePress(canvas(0), Qt::LeftButton, {}, QPoint(50, 50));
    QTest::keyClick(canvas(0), Qt::Key_Escape);
    QTest::mouseRelease(canvas(0), Qt::LeftButton, {}, QPoint(300, 90));
    EXPECT_TRUE(viewers[0]->range().isHome()) << "Escape takes the band back";
}

TEST_F(Navigation, keys_zoom_move_and_reset) {
    QTest::keyClick(canvas(0), Qt::Key_Plus);
    EXPECT_NEAR(shown(0).width(), 800, 1e-6);
    EXPECT_NEAR(shown(0).center().x(), 500, 1e-6);
    QTest::keyClick(canvas(0), Qt::Key_Right);
    EXPECT_NEAR(shown(0).left(), 180, 1e-6);
    QTest::keyClick(canvas(0), Qt::Key_Left);
    EXPECT_NEAR(shown(0).left(), 100, 1e-6);
    const double height = shown(0).height();
    QTest::keyClick(canvas(0), Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_NEAR(shown(0).height(), 0.8 * height, 1e-6);
    QTest::keyClick(canvas(0), Qt::Key_Up);
    EXPECT_GT(shown(0).top(), viewers[0]->range().home().top());
    QTest::keyClick(canvas(0), Qt::Key_Minus);
    EXPECT_NEAR(shown(0).width(), 1000, 1e-6);
    QTest::keyClick(canvas(0), Qt::Key_0);
    EXPECT_TRUE(viewers[0]->range().isHome());
}

TEST_F(Navigation, the_wheel_zooms_about_the_mouse_with_control_or_focus_and_else_scrolls) {
    canvas(1)->setFocus();
    canvas(0)->clearFocus();
    const QPoint at = place(0, 250, 50);
    wheel(0, at, 120, {});
    EXPECT_TRUE(viewers[0]->range().isHome());
    wheel(0, at, 120, Qt::ControlModifier);
    wheel(0, at, 120, Qt::ControlModifier);
    EXPECT_NEAR(shown(0).width(), 640, 1e-6);
    EXPECT_NEAR(viewers[0]->plot()->fromCanvas(at).x(), 250, 2) << "what is under the mouse stays there";
    wheel(0, at, -1200, Qt::ControlModifier);
    EXPECT_EQ(shown(0).width(), viewers[0]->range().home().width());
    wheel(0, at, 120, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_LT(shown(0).height(), viewers[0]->range().home().height());
}

TEST_F(Navigation, linked_axes_follow_each_other_over_the_span_of_all) {
    matrix->bar()->linkAction()->setChecked(true);
    EXPECT_NEAR(viewers[0]->range().home().right(), 1400, 1e-9);
    EXPECT_NEAR(viewers[1]->range().home().left(), 0, 1e-9);
    const double height = shown(1).height();
    drag(0, place(0, 300, 80), place(0, 600, 20));
    EXPECT_NEAR(shown(1).left(), shown(0).left(), 1e-6);
    EXPECT_NEAR(shown(1).right(), shown(0).right(), 1e-6);
    EXPECT_EQ(shown(1).height(), height) << "each keeps its own signal axis";
    QTest::keyClick(canvas(1), Qt::Key_Home);
    EXPECT_TRUE(viewers[0]->range().isHome());

    matrix->bar()->linkAction()->setChecked(false);
    EXPECT_NEAR(viewers[0]->range().home().right(), 1000, 1e-9);
    viewers[0]->zoomTime(0.5, 500);
    EXPECT_TRUE(viewers[1]->range().isHome());
    matrix->bar()->resetAction()->trigger();
    EXPECT_TRUE(viewers[0]->range().isHome());
}

TEST_F(Navigation, a_viewer_that_comes_later_joins_the_linked_axes_and_leaves_them_again) {
    matrix->bar()->linkAction()->setChecked(true);
    auto* later = new VKViewer2DChroma;
    later->insertPlotter(signal({0, 2000}, {0, 1}));
    add(matrix, later);
    EXPECT_NEAR(viewers[0]->range().home().right(), 2000, 1e-9);
    matrix->extractViewer(viewers[0]);
    EXPECT_NEAR(viewers[0]->range().home().right(), 1000, 1e-9);
    viewers[0]->zoomTime(0.5, 500);
    EXPECT_TRUE(later->range().isHome());
}

TEST_F(Navigation, the_cursor_reads_out_the_nearest_sample) {
    auto* overlay = canvas(0)->findChild<TCursorOverlay*>();
    const QPoint near = place(0, 520, 10);
    QMouseEvent move(QEvent::MouseMove, near, Qt::NoButton, Qt::NoButton, {});
    QCoreApplication::sendEvent(canvas(0), &move);
    EXPECT_TRUE(overlay->isCrossShown());
    const QImage image = canvas(0)->grab().toImage();
    EXPECT_EQ(image.pixelColor(place(0, 500, 100)), canvas(0)->palette().color(QPalette::Link));
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(canvas(0), &leave);
    EXPECT_FALSE(overlay->isCrossShown());
}

TEST_F(Navigation, only_viewers_within_sight_are_built) {
    fill(1000);
    const auto plots = matrix->plots();
    EXPECT_EQ(plots.size(), 1002);
    EXPECT_GE(built(), 2);
    EXPECT_LE(built(), 6);
    matrix->findChild<QAbstractScrollArea*>()->verticalScrollBar()->setValue(1 << 30);
    settle();
    EXPECT_LE(built(), 12);
    EXPECT_FALSE(viewers[0]->isVisible());
    const VKViewer2D* last = plots.last();
    EXPECT_TRUE(last->isVisible());
    EXPECT_TRUE(matrix->rect().contains(QRect(last->mapTo(matrix, QPoint(0, 0)), last->size())));
}

TEST_F(Navigation, every_tool_is_reached_by_keyboard) {
    QWidgetList tools{canvas(0), matrix->bar()->widgetForAction(matrix->bar()->linkAction())};
    for (QToolButton* button : viewers[0]->findChildren<QToolButton*>()) {
        EXPECT_FALSE(button->accessibleName().isEmpty());
        tools += button;
    }
    EXPECT_EQ(tools.size(), 4);
    for (const QWidget* tool : tools) {
        EXPECT_TRUE(tool->focusPolicy() & Qt::TabFocus);
    }
}

TEST_F(Navigation, the_switches_are_remembered) {
    matrix->bar()->gridAction()->setChecked(false);
    EXPECT_FALSE(QSettings().value("techplot/grid").toBool());
    VKViewer2DChroma next;
    next.settingRead();
    show(next);
    EXPECT_FALSE(next.plot()->itemList().first()->isVisible()) << "the grid stays as it was left";
}

TEST(ViewRange, home_leaves_room_and_opens_a_range_of_one_value) {
    TViewRange range;
    range.setHome(QRectF(100, 0, 1000, 200));
    EXPECT_EQ(range.home(), QRectF(100, -6, 1000, 226));
    EXPECT_TRUE(range.isHome());
    range.setHome(QRectF(40, 7, 0, 0));
    EXPECT_LT(range.home().left(), 40);
    EXPECT_GT(range.home().right(), 40);
    EXPECT_GT(range.home().height(), 0);
    const auto large = static_cast<double>(std::numeric_limits<float>::max());
    range.setHome(QRectF(-large, -large, 2 * large, 2 * large));
    EXPECT_TRUE(std::isfinite(range.home().height()));
}

TEST(ViewRange, no_command_empties_or_inverts_the_axes) {
    TViewRange range;
    range.setHome(QRectF(0, 0, 1000, 100));
    for (int i = 0; i < 500; ++i)
        range.zoomTime(0.5, 300);
    EXPECT_NEAR(range.shown().width(), 0.1, 1e-9);
    EXPECT_LE(range.shown().left(), 300);
    const QRectF before = range.shown();
    range.zoomTime(0, 300);
    range.zoomTime(-1, 300);
    range.zoomTime(std::nan(""), 300);
    range.move(std::numeric_limits<double>::infinity(), 0);
    range.show(QRectF(std::nan(""), 0, 1, 1));
    EXPECT_EQ(range.shown(), before);
    range.showTime(900, 700);
    EXPECT_NEAR(range.shown().left(), 700, 1e-9);
    EXPECT_NEAR(range.shown().right(), 900, 1e-9);
}

TEST(ViewRange, new_data_keep_a_chosen_part_as_far_as_it_lies_inside) {
    TViewRange range;
    range.setHome(QRectF(0, 0, 1000, 100));
    range.showTime(600, 800);
    range.setHome(QRectF(0, 0, 1200, 50));
    EXPECT_NEAR(range.shown().left(), 600, 1e-9);
    EXPECT_NEAR(range.shown().right(), 800, 1e-9);
    range.setHome(QRectF(0, 0, 700, 50));
    EXPECT_NEAR(range.shown().right(), 700, 1e-9);
    EXPECT_NEAR(range.shown().width(), 200, 1e-9);
}

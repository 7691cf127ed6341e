#include "PlotFixture.h"
#include "TPalette.h"
#include "TPlotColors.h"
#include <limits>
#include <memory>

using namespace TechPlot;

namespace {

constexpr float none = std::numeric_limits<float>::quiet_NaN();
constexpr float inf = std::numeric_limits<float>::infinity();
constexpr float huge = std::numeric_limits<float>::max();

const QList<QColor> stops{QColor("green"), QColor("orange"), QColor("orange"), QColor("red")};

} // namespace

class Look : public PlotTest {
protected:
    static QImage picture(VKViewer2D& viewer) {
        settle();
        return viewer.plot()->canvas()->grab().toImage().convertToFormat(QImage::Format_RGB32);
    }

    static QColor at(VKViewer2D& viewer, const QPointF& value, const QPoint& offset = {}) {
        return picture(viewer).pixelColor(viewer.plot()->toCanvas(value).toPoint() + offset);
    }

    static bool isBlank(VKViewer2D& viewer) {
        QImage paper = picture(viewer);
        paper.fill(viewer.palette().color(QPalette::Base));
        return picture(viewer) == paper;
    }
};

TEST_F(Look, markers_take_colour_and_shape_from_their_value) {
    TPalette palette(stops, "PeakColors");
    VKViewer2DChroma viewer;
    viewer.insertPlotter(signal({0, 400}, {0, 100}));
    VKPlotterPeakIndexation* peaks = marks({100, 200, 300}, {50, 50, 50}, {1, 3, 2});
    peaks->setPointSize(30); // 40 pixels
    peaks->setPalette(&palette);
    viewer.insertPlotter(peaks);
    show(viewer);
    const QColor paper = viewer.palette().color(QPalette::Base);
    EXPECT_EQ(at(viewer, {100, 50}), QColor("green"));
    EXPECT_EQ(at(viewer, {200, 50}), QColor("red"));
    EXPECT_EQ(at(viewer, {300, 50}), QColor("orange"));
    const QPoint corner(15, -15);
    const QPoint side(22, 0);
    EXPECT_EQ(at(viewer, {100, 50}, corner), paper) << "a circle has no corners";
    EXPECT_EQ(at(viewer, {200, 50}, corner), QColor("red")) << "a square has";
    EXPECT_EQ(at(viewer, {300, 50}, corner), paper);
    EXPECT_EQ(at(viewer, {100, 50}, side), paper);
    EXPECT_EQ(at(viewer, {300, 50}, side), QColor("orange")) << "a diamond reaches further to the side";
}

TEST_F(Look, without_palette_or_value_the_brush_fills_a_marker) {
    TPalette palette(stops, "PeakColors");
    const std::unique_ptr<VKPlotterPeakIndexation> odd(marks({1, 2}, {1, 1}, {none, 1}));
    odd->setColorBrush(Qt::blue);
    EXPECT_EQ(odd->markerColor(1), QColor(Qt::blue));
    odd->setPalette(&palette);
    EXPECT_EQ(odd->markerColor(0), QColor(Qt::blue));
    EXPECT_EQ(odd->markerColor(1), QColor("green"));
    EXPECT_EQ(odd->markerShape(2), VKPlotterPeakIndexation::Shape::Diamond) << "out of range";
}

TEST_F(Look, hostile_values_are_not_drawn_and_do_not_spoil_the_axes) {
    VKViewer2DChroma viewer;
    viewer.setGridVisible(false);
    show(viewer);
    viewer.insertPlotter(signal({}, {}));
    viewer.insertPlotter(signal({none, inf, 3}, {1, 2, -inf}));
    viewer.insertPlotter(marks({none, 2}, {1, inf}, {1, 3}));
    viewer.insertPlotter(marks({}, {}, {}));
    viewer.insertPlotter(new VKPlotterPeakIndexation(nullptr));
    auto* empty = new VKPlotterSignal;
    empty->setRawData(new TData(-5, nullptr, nullptr));
    viewer.insertPlotter(empty);
    EXPECT_TRUE(isBlank(viewer));
    viewer.readOut(1);
    viewer.zoomTime(0.5, 0.5);
}

TEST_F(Look, a_line_breaks_at_what_is_not_a_number_and_huge_values_are_drawn_in_every_type) {
    VKViewer2DChroma viewer;
    viewer.setGridVisible(false);
    show(viewer);
    const QColor paper = viewer.palette().color(QPalette::Base);
    auto* gap = signal({0, 10, 20, 30, 40}, {5, 5, none, 5, 5});
    viewer.insertPlotter(gap);
    EXPECT_NEAR(viewer.range().home().right(), 40, 1e-9);
    EXPECT_NE(at(viewer, {5, 5}), paper);
    EXPECT_EQ(at(viewer, {20, 5}), paper);
    EXPECT_NE(at(viewer, {35, 5}), paper);
    EXPECT_EQ(gap->nearestSample(19), 1);
    viewer.insertPlotter(signal({-huge, huge}, {-huge, huge}));
    for (int type = 0; type < 3; ++type) {
        gap->setType(static_cast<VKPlotterSignal::TypeSignal>(type));
        gap->refreshDraw();
        EXPECT_FALSE(picture(viewer).isNull());
    }
}

TEST_F(Look, a_colour_changes_with_refresh_and_stays_off_the_screen_while_refresh_is_off) {
    VKViewer2DChroma viewer;
    VKPlotterSignal* line = signal({0, 100}, {50, 50});
    line->getStyle()->setLineThickness(6.0);
    line->getStyle()->setColorPen(Qt::red);
    viewer.insertPlotter(line);
    show(viewer);
    EXPECT_EQ(at(viewer, {50, 50}), QColor(Qt::red));
    const QRectF home = viewer.range().home();
    viewer.setRefreshEnabled(false);
    line->rawData()->Y()[0] = 500;
    line->initMinMaxXYZC();
    EXPECT_EQ(viewer.range().home(), home);
    viewer.setRefreshEnabled(true);
    EXPECT_GT(viewer.range().home().bottom(), 500);
    line->getStyle()->setColorPen(Qt::blue);
    line->refreshDraw();
    EXPECT_EQ(at(viewer, {100, 50}, {-2, 0}), QColor(Qt::blue));
}

TEST_F(Look, colours_are_kept_apart_from_light_and_dark_backgrounds_in_their_hue) {
    for (const QColor& background : {QColor(Qt::white), QColor("#262b32"), QColor(Qt::black)}) {
        for (const QColor& color : {QColor(Qt::green), QColor("orange"), QColor(Qt::red), QColor(Qt::black),
                                    QColor(Qt::white), QColor()})
            EXPECT_GE(TPlotColors::contrast(TPlotColors::readable(color, background), background), 3.0);
    }
    EXPECT_EQ(TPlotColors::readable(Qt::red, Qt::white), QColor(Qt::red));
    EXPECT_EQ(TPlotColors::readable(Qt::green, Qt::white).hslHue(), QColor(Qt::green).hslHue());
    EXPECT_NEAR(TPlotColors::contrast(Qt::black, Qt::white), 21.0, 1e-9);
}

#include "TPlotWidget.h"

#include "TavrelColors.h"
#include <QEvent>
#include <QLocale>
#include <cmath>
#include <qwt_plot_canvas.h>
#include <qwt_plot_grid.h>
#include <qwt_plot_layout.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_widget.h>

namespace TechPlot {

namespace {

constexpr int mostTimeTicks = 12;
constexpr int mostSignalTicks = 7;
constexpr double tickExtent = 4.0;

// Numbers in the user's locale, with as many decimals as the distance of the ticks asks for.
class NumberScale : public QwtScaleDraw {
public:
    NumberScale() {
        enableComponent(Backbone, false);
        setTickLength(QwtScaleDiv::MinorTick, 0);
        setTickLength(QwtScaleDiv::MediumTick, 0);
        setTickLength(QwtScaleDiv::MajorTick, tickExtent);
    }

    QwtText label(double value) const override {
        const QList<double> ticks = scaleDiv().ticks(QwtScaleDiv::MajorTick);
        const double step = ticks.size() > 1 ? std::abs(ticks.at(1) - ticks.at(0)) : 0.0;
        if (std::abs(value) < step * 1e-6)
            return QwtText(QLocale().toString(0), QwtText::PlainText);
        if (step < 1e-5 || std::abs(value) >= 1e7)
            return QwtText(QLocale().toString(value, 'g', 6), QwtText::PlainText);
        const int decimals = qBound(0, static_cast<int>(-std::floor(std::log10(step) + 1e-9)), 5);
        return QwtText(QLocale().toString(value, 'f', decimals), QwtText::PlainText);
    }
};

} // namespace

TPlotWidget::TPlotWidget(QWidget* parent) : QwtPlot(parent), m_grid(new QwtPlotGrid) {
    setAutoReplot(false);
    auto* area = new QwtPlotCanvas;
    area->setPaintAttribute(QwtPlotCanvas::BackingStore, false);
    area->setFrameStyle(QFrame::NoFrame);
    area->setFocusPolicy(Qt::StrongFocus);
    setCanvas(area);
    setFrameStyle(QFrame::NoFrame);
    plotLayout()->setCanvasMargin(0);
    plotLayout()->setAlignCanvasToScales(true);
    setContentsMargins(4, 0, 12, 4);
    for (const int axis : {int(xBottom), int(yLeft)}) {
        setAxisScaleDraw(axis, new NumberScale);
        axisWidget(axis)->setMargin(0);
        axisWidget(axis)->setSpacing(4);
    }
    setAxisMaxMajor(xBottom, mostTimeTicks);
    setAxisMaxMajor(yLeft, mostSignalTicks);
    m_grid->enableXMin(false);
    m_grid->enableYMin(false);
    m_grid->attach(this);
    applyLook();
}

void TPlotWidget::applyLook() {
    const QPalette colors = palette();
    setCanvasBackground(colors.brush(QPalette::Base));
    m_grid->setMajorPen(TavrelColors::line(colors), 1.0, Qt::DotLine);
    QFont numbers = font();
    if (numbers.pointSizeF() > 0)
        numbers.setPointSizeF(numbers.pointSizeF() * 0.9);
    QPalette axisColors = colors;
    axisColors.setColor(QPalette::Text, TavrelColors::caption(colors));
    axisColors.setColor(QPalette::WindowText, TavrelColors::line(colors));
    const double room = QFontMetricsF(numbers).horizontalAdvance(QLocale().toString(100000)) + 2 * tickExtent;
    for (const int axis : {int(xBottom), int(yLeft)}) {
        setAxisFont(axis, numbers);
        axisWidget(axis)->setPalette(axisColors);
        QwtText title = axisTitle(axis);
        title.setFont(numbers);
        title.setColor(colors.color(QPalette::Text));
        setAxisTitle(axis, title);
    }
    axisScaleDraw(yLeft)->setMinimumExtent(room);
}

void TPlotWidget::setAxisTitles(const QString& time, const QString& signal) {
    setAxisTitle(xBottom, QwtText(time, QwtText::PlainText));
    setAxisTitle(yLeft, QwtText(signal, QwtText::PlainText));
    applyLook();
}

void TPlotWidget::setHeading(const QString& heading) {
    QwtText text(heading.simplified(), QwtText::PlainText);
    QFont bold = font();
    bold.setWeight(QFont::DemiBold);
    text.setFont(bold);
    text.setColor(palette().color(QPalette::Text));
    setTitle(text);
}

void TPlotWidget::setGridVisible(bool visible) {
    m_grid->setVisible(visible);
}

void TPlotWidget::setRange(const QRectF& range) {
    m_range = range;
    setAxisScale(xBottom, range.left(), range.right());
    setAxisScale(yLeft, range.top(), range.bottom());
}

QwtPlotItem* TPlotWidget::add(std::unique_ptr<QwtPlotItem> item) {
    QwtPlotItem* added = item.release();
    added->attach(this);
    return added;
}

QPointF TPlotWidget::toCanvas(const QPointF& value) const {
    const QRectF area = canvas()->contentsRect();
    return {area.left() + (value.x() - m_range.left()) / m_range.width() * (area.width() - 1),
            area.top() + (m_range.bottom() - value.y()) / m_range.height() * (area.height() - 1)};
}

QPointF TPlotWidget::fromCanvas(const QPointF& place) const {
    const QRectF area = canvas()->contentsRect();
    return {m_range.left() + (place.x() - area.left()) / qMax(1.0, area.width() - 1) * m_range.width(),
            m_range.bottom() - (place.y() - area.top()) / qMax(1.0, area.height() - 1) * m_range.height()};
}

void TPlotWidget::changeEvent(QEvent* event) {
    QwtPlot::changeEvent(event);
    if (event->type() != QEvent::PaletteChange && event->type() != QEvent::FontChange)
        return;
    applyLook();
    replot();
}

} // namespace TechPlot

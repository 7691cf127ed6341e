#include "TPeakItem.h"

#include "TData.h"
#include "TPlotColors.h"
#include "VKPlotterPeakIndexation.h"
#include <QPainter>
#include <QPainterPath>
#include <qwt_plot.h>
#include <qwt_scale_map.h>

namespace TechPlot {

namespace {

constexpr double markerDepth = 30.0;
constexpr double pixelsPerPoint = 96.0 / 72.0;

// Squares and diamonds are drawn somewhat smaller or larger than the circle's square, so that all three
// look of one size.
QPainterPath outline(VKPlotterPeakIndexation::Shape shape, const QPointF& place, double diameter) {
    QPainterPath path;
    if (shape == VKPlotterPeakIndexation::Shape::Circle) {
        path.addEllipse(place, diameter / 2, diameter / 2);
    } else if (shape == VKPlotterPeakIndexation::Shape::Square) {
        const double half = diameter * 0.44;
        path.addRect(QRectF(place - QPointF(half, half), place + QPointF(half, half)));
    } else {
        const double half = diameter * 0.62;
        path.moveTo(place - QPointF(half, 0));
        path.lineTo(place - QPointF(0, half));
        path.lineTo(place + QPointF(half, 0));
        path.lineTo(place + QPointF(0, half));
        path.closeSubpath();
    }
    return path;
}

} // namespace

TPeakItem::TPeakItem(const VKPlotterPeakIndexation& plotter) : m_plotter(plotter) {
    setZ(markerDepth);
}

void TPeakItem::draw(QPainter* painter, const QwtScaleMap& timeMap, const QwtScaleMap& signalMap,
                     const QRectF& canvas) const {
    const TData* data = m_plotter.data();
    if (data == nullptr || !m_plotter.isPointVisible())
        return;
    const double reach = m_plotter.pointSize() * pixelsPerPoint;
    const QRectF visible = canvas.adjusted(-reach, -reach, reach, reach);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    for (int i = 0; i < data->count(); ++i) {
        if (!data->isDrawable(i))
            continue;
        const QPointF place(timeMap.transform(static_cast<double>(data->X()[i])),
                            signalMap.transform(static_cast<double>(data->Y()[i])));
        if (visible.contains(place))
            drawMarker(painter, i, place);
    }
    painter->restore();
}

void TPeakItem::drawMarker(QPainter* painter, int index, const QPointF& place) const {
    const QPalette palette = plot()->palette();
    const QColor& background = palette.color(QPalette::Base);
    const double diameter = m_plotter.pointSize() * pixelsPerPoint;
    const QPainterPath marker = outline(m_plotter.markerShape(index), place, diameter);

    // A rim in the background's colour parts the marker from the line it stands on.
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(background, 3.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->drawPath(marker);
    painter->setPen(QPen(TPlotColors::readable(m_plotter.getStyle()->colorPen(), background), 1.0));
    painter->setBrush(m_plotter.markerColor(index));
    painter->drawPath(marker);

    const QString* texts = m_plotter.data()->text();
    if (texts == nullptr || texts[index].isEmpty())
        return;
    painter->setPen(palette.color(QPalette::Text));
    const QPointF above = place - QPointF(0, diameter);
    const QRectF box(above - QPointF(150, 40), QSizeF(300, 40));
    painter->drawText(box, Qt::AlignHCenter | Qt::AlignBottom | Qt::TextSingleLine, texts[index]);
}

} // namespace TechPlot

#include "TSignalItem.h"

#include "TData.h"
#include "TPlotColors.h"
#include "VKPlotterSignal.h"
#include <QPainter>
#include <algorithm>
#include <qwt_clipper.h>
#include <qwt_plot.h>
#include <qwt_scale_map.h>

namespace TechPlot {

namespace {
constexpr double curveDepth = 20.0;
}

TSignalItem::TSignalItem(const VKPlotterSignal& plotter) : m_plotter(plotter) {
    setZ(curveDepth);
}

void TSignalItem::draw(QPainter* painter, const QwtScaleMap& timeMap, const QwtScaleMap& signalMap,
                       const QRectF& canvas) const {
    const TData* data = m_plotter.rawData();
    if (data == nullptr)
        return;
    const TStylePlotter* style = m_plotter.getStyle();
    const QColor color = TPlotColors::readable(style->colorPen(), plot()->palette().color(QPalette::Base));
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(color, style->lineThickness(), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->setBrush(Qt::NoBrush);

    // Clipping ends a line at the border: it is drawn as far outside as its own width.
    const double margin = 2 * style->lineThickness();
    const QRectF clip = canvas.adjusted(-margin, -margin, margin, margin);
    const double zero = std::clamp(signalMap.transform(0.0), clip.top(), clip.bottom());
    const bool joined = m_plotter.type() == VKPlotterSignal::Line;
    QPolygonF run;
    for (int i = 0; i < data->count(); ++i) {
        if (!data->isDrawable(i)) {
            drawLine(painter, run, clip);
            run.clear();
            continue;
        }
        const QPointF point(timeMap.transform(static_cast<double>(data->X()[i])),
                            signalMap.transform(static_cast<double>(data->Y()[i])));
        if (joined) {
            run.append(point);
        } else {
            drawSingle(painter, point, zero, clip);
        }
    }
    drawLine(painter, run, clip);
    painter->restore();
}

void TSignalItem::drawLine(QPainter* painter, const QPolygonF& points, const QRectF& clip) const {
    if (points.size() == 1 && clip.contains(points.first()))
        painter->drawPoint(points.first());
    if (points.size() > 1)
        painter->drawPolyline(QwtClipper::clipPolygonF(clip, points, false));
}

void TSignalItem::drawSingle(QPainter* painter, const QPointF& point, double zero, const QRectF& clip) const {
    if (point.x() < clip.left() || point.x() > clip.right())
        return;
    const double y = std::clamp(point.y(), clip.top(), clip.bottom());
    if (m_plotter.type() == VKPlotterSignal::Sticks) {
        painter->drawLine(QPointF(point.x(), zero), QPointF(point.x(), y));
    } else if (clip.contains(point)) {
        painter->drawPoint(point);
    }
}

} // namespace TechPlot

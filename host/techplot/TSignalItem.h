#pragma once

#include <qwt_plot_item.h>

class QPolygonF;

namespace TechPlot {

class VKPlotterSignal;

/// Draws the curve of a signal plotter in one plot, as the plotter stands at the moment of drawing.
class TSignalItem : public QwtPlotItem {
public:
    explicit TSignalItem(const VKPlotterSignal& plotter);

    void draw(QPainter* painter, const QwtScaleMap& timeMap, const QwtScaleMap& signalMap,
              const QRectF& canvas) const override;

private:
    void drawLine(QPainter* painter, const QPolygonF& points, const QRectF& clip) const;
    void drawSingle(QPainter* painter, const QPointF& point, double zero, const QRectF& clip) const;

    const VKPlotterSignal& m_plotter;
};

} // namespace TechPlot

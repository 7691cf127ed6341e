#pragma once

#include <qwt_plot_item.h>

namespace TechPlot {

class VKPlotterPeakIndexation;

/// Draws the markers of a peak plotter in one plot, above the curves.
class TPeakItem : public QwtPlotItem {
public:
    explicit TPeakItem(const VKPlotterPeakIndexation& plotter);

    void draw(QPainter* painter, const QwtScaleMap& timeMap, const QwtScaleMap& signalMap,
              const QRectF& canvas) const override;

private:
    void drawMarker(QPainter* painter, int index, const QPointF& place) const;

    const VKPlotterPeakIndexation& m_plotter;
};

} // namespace TechPlot

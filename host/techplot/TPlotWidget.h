#pragma once

#include <QRectF>
#include <memory>
#include <qwt_plot.h>

class QwtPlotGrid;

namespace TechPlot {

/// The plot inside a viewer: two axes, a grid, and the colours and fonts of the application. It redraws
/// when it is told to, never by itself. Left axes take the same room in all plots, unless their numbers
/// are very long, so that plots below each other stand in line.
class TPlotWidget : public QwtPlot {
    Q_OBJECT

public:
    explicit TPlotWidget(QWidget* parent);

    void setAxisTitles(const QString& time, const QString& signal);
    /// A heading above the plot, as plain text; for pictures.
    void setHeading(const QString& heading);
    void setGridVisible(bool visible);
    void setRange(const QRectF& range);

    /// Takes the item over and gives it back for later use.
    QwtPlotItem* add(std::unique_ptr<QwtPlotItem> item);

    /// Between values and pixels of the canvas, by the range last set, drawn or not yet.
    QPointF toCanvas(const QPointF& value) const;
    QPointF fromCanvas(const QPointF& place) const;

    /// Small enough that a row of a crowded column can hold it.
    QSize minimumSizeHint() const override { return {80, 60}; }

protected:
    void changeEvent(QEvent* event) override;

private:
    void applyLook();

    QwtPlotGrid* m_grid;
    QRectF m_range = QRectF(0, 0, 1, 1);
};

} // namespace TechPlot

#pragma once

#include <QColor>

namespace TechPlot {

/// How a plotter is drawn: colours and line thickness. A change shows with the plotter's `refreshDraw`.
class TStylePlotter {
public:
    /// The colour asked for. On screen and on paper its lightness gives way, if need be, until it stands
    /// out from the background; its hue stays.
    void setColorPen(const QColor& color) { m_pen = color; }
    const QColor& colorPen() const { return m_pen; }

    void setColorBrush(const QColor& color) { m_brush = color; }
    const QColor& colorBrush() const { return m_brush; }

    /// In pixels of a screen of 96 dots an inch, 0.5 to 20; what lies outside is brought to the nearer
    /// end, and what isn't a number is ignored.
    void setLineThickness(const double& thickness);
    double lineThickness() const { return m_thickness; }

private:
    QColor m_pen = Qt::black;
    QColor m_brush = Qt::blue;
    double m_thickness = 1.5;
};

} // namespace TechPlot

#pragma once

#include <QRectF>

namespace TechPlot {

/// What part of a curve a viewer shows: the home range, that shows all of it, and the part chosen within.
/// Rectangles are in units of the axes: left to right is time, top to bottom the signal from low to high.
///
/// The shown part never leaves the home range and never gets thinner than a ten-thousandth of it, so that
/// no series of commands ends in an empty or inverted axis. Arguments that aren't finite change nothing.
class TViewRange {
public:
    /// Sets the home range around the points in `bounds`, with room for markers above. A range that shows
    /// all goes on showing all; a chosen part stays where it is, as far as it lies inside.
    void setHome(const QRectF& bounds);

    const QRectF& home() const { return m_home; }
    const QRectF& shown() const { return m_shown; }
    bool isHome() const { return m_shown == m_home; }

    void reset() { m_shown = m_home; }
    void show(const QRectF& part);
    void showTime(double from, double to);

    /// Makes the shown time `factor` times as long; `centre` keeps its place on the axis.
    void zoomTime(double factor, double centre);
    void zoomSignal(double factor, double centre);

    /// Moves by parts of what is shown: 1 is one screen later or higher.
    void move(double right, double up);

private:
    QRectF m_home = QRectF(0, 0, 1, 1);
    QRectF m_shown = QRectF(0, 0, 1, 1);
};

} // namespace TechPlot

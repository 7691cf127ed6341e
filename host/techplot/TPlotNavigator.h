#pragma once

#include <QObject>
#include <QPointF>

class QKeyEvent;
class QMouseEvent;
class QWheelEvent;

namespace TechPlot {

class TCursorOverlay;
class TPlotWidget;
class VKViewer2D;

/// Turns what the user does on a plot into commands of its viewer:
/// drag zooms to a rubber band (a flat one: in time alone), drag with Shift or the middle button moves, a
/// double click shows all; + and - zoom in time, with Ctrl in the signal; arrows move; 0 and Home show all;
/// Escape takes the band back. The wheel zooms in time about the mouse, with Shift in the signal, when the
/// plot has the focus or Ctrl is held: otherwise it scrolls the column. Keys and wheel that change nothing
/// are passed on, and the mouse always is, so that others can watch it on the viewer.
class TPlotNavigator : public QObject {
    Q_OBJECT

public:
    /// The navigator is a child of the plot.
    TPlotNavigator(VKViewer2D& viewer, TPlotWidget& plot, TCursorOverlay& overlay);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class Drag { None, Band, Move };

    void press(const QMouseEvent& event);
    void drag(const QMouseEvent& event);
    void letGo(const QMouseEvent& event);
    bool wheel(const QWheelEvent& event);
    bool key(const QKeyEvent& event);
    void zoomByKey(double factor, bool signal);
    void zoomToBand(const QRectF& band);
    void endDrag();
    QRectF bandTo(const QPointF& place) const;

    VKViewer2D& m_viewer;
    TPlotWidget& m_plot;
    TCursorOverlay& m_overlay;
    QPointF m_start;
    Drag m_drag = Drag::None;
};

} // namespace TechPlot

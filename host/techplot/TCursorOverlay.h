#pragma once

#include <QWidget>

namespace TechPlot {

/// Lies over a plot's canvas and draws what follows the mouse: the cross on the sample that is read out,
/// and the rubber band. It never takes mouse events and redraws nothing of the plot but what it covered.
class TCursorOverlay : public QWidget {
    Q_OBJECT

public:
    explicit TCursorOverlay(QWidget* canvas);

    void showCross(const QPointF& place);
    void hideCross();
    bool isCrossShown() const { return m_crossShown; }

    /// An empty rectangle takes the band away.
    void setBand(const QRectF& band);

protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QRect crossArea() const;

    QPointF m_cross;
    QRectF m_band;
    bool m_crossShown = false;
};

} // namespace TechPlot

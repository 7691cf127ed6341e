#include "TPlotNavigator.h"

#include "TCursorOverlay.h"
#include "TPlotWidget.h"
#include "VKViewer2D.h"
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>
#include <cmath>

namespace TechPlot {

namespace {

constexpr double zoomStep = 0.8;
constexpr double moveStep = 0.1;
constexpr double flatBand = 10.0;

} // namespace

TPlotNavigator::TPlotNavigator(VKViewer2D& viewer, TPlotWidget& plot, TCursorOverlay& overlay)
    : QObject(&plot), m_viewer(viewer), m_plot(plot), m_overlay(overlay) {
    plot.canvas()->setMouseTracking(true);
    plot.canvas()->setCursor(Qt::CrossCursor);
    plot.canvas()->installEventFilter(this);
}

bool TPlotNavigator::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        press(*static_cast<QMouseEvent*>(event));
        return false;
    case QEvent::MouseMove:
        drag(*static_cast<QMouseEvent*>(event));
        return false;
    case QEvent::MouseButtonRelease:
        letGo(*static_cast<QMouseEvent*>(event));
        return false;
    case QEvent::MouseButtonDblClick:
        m_viewer.resetRange();
        return false;
    case QEvent::Wheel:
        return wheel(*static_cast<QWheelEvent*>(event));
    case QEvent::KeyPress:
        return key(*static_cast<QKeyEvent*>(event));
    case QEvent::Leave:
        m_viewer.clearReadOut();
        return false;
    case QEvent::Hide:
        endDrag();
        return false;
    default:
        return QObject::eventFilter(watched, event);
    }
}

void TPlotNavigator::press(const QMouseEvent& event) {
    const bool left = event.button() == Qt::LeftButton;
    if (!left && event.button() != Qt::MiddleButton)
        return;
    m_start = event.localPos();
    m_drag = left && !event.modifiers().testFlag(Qt::ShiftModifier) ? Drag::Band : Drag::Move;
    m_plot.canvas()->setFocus(Qt::MouseFocusReason);
    if (m_drag == Drag::Move)
        m_plot.canvas()->setCursor(Qt::ClosedHandCursor);
}

void TPlotNavigator::drag(const QMouseEvent& event) {
    const QPointF place = event.localPos();
    if (m_drag == Drag::Band) {
        m_overlay.setBand(bandTo(place));
    } else if (m_drag == Drag::Move) {
        const QSizeF size = m_plot.canvas()->size();
        const QPointF way = place - m_start;
        m_start = place;
        m_viewer.move(-way.x() / qMax(1.0, size.width()), way.y() / qMax(1.0, size.height()));
        return;
    }
    m_viewer.readOut(m_plot.fromCanvas(place).x());
}

void TPlotNavigator::letGo(const QMouseEvent& event) {
    const Drag done = m_drag;
    endDrag();
    const bool wide = std::abs(event.localPos().x() - m_start.x()) >= QApplication::startDragDistance();
    if (done == Drag::Band && wide)
        zoomToBand(bandTo(event.localPos()));
}

void TPlotNavigator::endDrag() {
    m_drag = Drag::None;
    m_overlay.setBand({});
    m_plot.canvas()->setCursor(Qt::CrossCursor);
}

QRectF TPlotNavigator::bandTo(const QPointF& place) const {
    const QRectF canvas = m_plot.canvas()->rect();
    QRectF band = QRectF(m_start, place).normalized();
    if (band.height() < flatBand) {
        band.setTop(canvas.top());
        band.setBottom(canvas.bottom());
    }
    return band.intersected(canvas);
}

void TPlotNavigator::zoomToBand(const QRectF& band) {
    QRectF part(m_plot.fromCanvas(band.bottomLeft()), m_plot.fromCanvas(band.topRight()));
    const QRectF canvas = m_plot.canvas()->rect();
    if (band.height() >= canvas.height()) {
        part.setTop(m_viewer.range().shown().top());
        part.setBottom(m_viewer.range().shown().bottom());
    }
    m_viewer.showPart(part);
}

bool TPlotNavigator::wheel(const QWheelEvent& event) {
    const bool meant = event.modifiers().testFlag(Qt::ControlModifier) || m_plot.canvas()->hasFocus();
    const QPoint angle = event.angleDelta();
    const int turned = angle.y() != 0 ? angle.y() : angle.x();
    if (!meant || turned == 0)
        return false;
    const QRectF before = m_viewer.range().shown();
    const double factor = std::pow(zoomStep, turned / 120.0);
    const QPointF centre = m_plot.fromCanvas(event.position());
    if (event.modifiers().testFlag(Qt::ShiftModifier)) {
        m_viewer.zoomSignal(factor, centre.y());
    } else {
        m_viewer.zoomTime(factor, centre.x());
    }
    return m_viewer.range().shown() != before;
}

void TPlotNavigator::zoomByKey(double factor, bool signal) {
    const QRectF shown = m_viewer.range().shown();
    if (signal) {
        m_viewer.zoomSignal(factor, shown.top());
    } else {
        m_viewer.zoomTime(factor, shown.center().x());
    }
}

bool TPlotNavigator::key(const QKeyEvent& event) {
    const QRectF before = m_viewer.range().shown();
    const bool control = event.modifiers().testFlag(Qt::ControlModifier);
    switch (event.key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        zoomByKey(zoomStep, control);
        break;
    case Qt::Key_Minus:
        zoomByKey(1 / zoomStep, control);
        break;
    case Qt::Key_Left:
        m_viewer.move(-moveStep, 0);
        break;
    case Qt::Key_Right:
        m_viewer.move(moveStep, 0);
        break;
    case Qt::Key_Up:
        m_viewer.move(0, moveStep);
        break;
    case Qt::Key_Down:
        m_viewer.move(0, -moveStep);
        break;
    case Qt::Key_0:
    case Qt::Key_Home:
        m_viewer.resetRange();
        break;
    case Qt::Key_Escape:
        if (m_drag == Drag::None)
            return false;
        endDrag();
        return true;
    default:
        return false;
    }
    return m_viewer.range().shown() != before;
}

} // namespace TechPlot

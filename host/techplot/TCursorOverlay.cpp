#include "TCursorOverlay.h"

#include "TavrelColors.h"
#include <QEvent>
#include <QPainter>
#include <cmath>

namespace TechPlot {

namespace {
constexpr double dotRadius = 4.0;
constexpr double bandStrength = 0.18;
} // namespace

TCursorOverlay::TCursorOverlay(QWidget* canvas) : QWidget(canvas) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    canvas->installEventFilter(this);
    setGeometry(canvas->rect());
}

bool TCursorOverlay::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize)
        setGeometry(parentWidget()->rect());
    return QWidget::eventFilter(watched, event);
}

QRect TCursorOverlay::crossArea() const {
    const int reach = static_cast<int>(dotRadius) + 3;
    const int x = qBound(-2 * reach, qRound(m_cross.x()), width() + 2 * reach);
    return {x - reach, 0, 2 * reach, height()};
}

void TCursorOverlay::showCross(const QPointF& place) {
    hideCross();
    m_cross = place;
    m_crossShown = true;
    update(crossArea());
}

void TCursorOverlay::hideCross() {
    if (!m_crossShown)
        return;
    m_crossShown = false;
    update(crossArea());
}

void TCursorOverlay::setBand(const QRectF& band) {
    update(m_band.toAlignedRect().adjusted(-2, -2, 2, 2));
    m_band = band;
    update(m_band.toAlignedRect().adjusted(-2, -2, 2, 2));
}

void TCursorOverlay::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QColor accent = TavrelColors::accent(palette());
    if (m_crossShown && rect().contains(m_cross.toPoint())) {
        const double x = std::floor(m_cross.x()) + 0.5;
        painter.setPen(QPen(TavrelColors::caption(palette()), 1.0, Qt::DashLine));
        painter.drawLine(QPointF(x, 0), QPointF(x, height()));
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(palette().color(QPalette::Base), 1.5));
        painter.setBrush(accent);
        painter.drawEllipse(m_cross, dotRadius, dotRadius);
    }
    if (m_band.isEmpty())
        return;
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(accent);
    painter.setBrush(TavrelColors::tint(palette(), bandStrength));
    painter.drawRect(m_band);
}

} // namespace TechPlot

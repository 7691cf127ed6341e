#include "EmptyPage.h"

#include "TavrelColors.h"

#include <QPainter>

namespace {

constexpr int widestText = 480;
constexpr int margin = 24;
constexpr int gap = 8;

} // namespace

EmptyPage::EmptyPage(QWidget* parent) : QWidget(parent) {}

void EmptyPage::setTexts(const QString& heading, const QString& advice) {
    m_heading = heading;
    m_advice = advice;
    setAccessibleName(heading);
    setAccessibleDescription(advice);
    update();
}

void EmptyPage::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.25);
    constexpr int flags = Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap;
    const QRect room(0, 0, qMin(widestText, width() - 2 * margin), height());
    const QRect heading = QFontMetrics(large).boundingRect(room, flags, m_heading);
    const QRect advice = fontMetrics().boundingRect(room, flags, m_advice);
    const int top = qMax(margin, (height() - heading.height() - gap - advice.height()) / 2);
    const int left = (width() - room.width()) / 2;
    painter.setFont(large);
    painter.drawText(QRect(left, top, room.width(), heading.height()), flags, m_heading);
    painter.setFont(font());
    painter.setPen(TavrelColors::caption(palette()));
    painter.drawText(QRect(left, top + heading.height() + gap, room.width(), advice.height()), flags,
                     m_advice);
}

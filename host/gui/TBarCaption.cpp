#include "TBarCaption.h"

#include "TPlainTip.h"
#include "TavrelColors.h"

#include <QPainter>

namespace {

constexpr int margin = 8;

} // namespace

TBarCaption::TBarCaption(Qt::TextElideMode elide, QWidget* parent, Qt::Alignment alignment)
    : QWidget(parent), m_elide(elide), m_alignment(alignment | Qt::AlignVCenter) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

void TBarCaption::setText(const QString& text) {
    m_text = text;
    setToolTip(TPlainTip::of(text));
    setAccessibleName(text);
    update();
}

void TBarCaption::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(TavrelColors::caption(palette()));
    const QRect room = rect().adjusted(margin, 0, -margin, 0);
    painter.drawText(room, static_cast<int>(m_alignment) | Qt::TextSingleLine,
                     fontMetrics().elidedText(m_text, m_elide, room.width()));
}

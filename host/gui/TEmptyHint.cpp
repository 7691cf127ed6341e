#include "TEmptyHint.h"

#include "TavrelColors.h"

#include <QPainter>
#include <QWidget>

void TEmptyHint::paint(QWidget* viewport, const QString& text, int margin, Qt::Alignment alignment) {
    QPainter painter(viewport);
    painter.setPen(TavrelColors::caption(viewport->palette()));
    const QRect room = viewport->rect().adjusted(margin, margin, -margin, -margin);
    painter.drawText(room, static_cast<int>(alignment) | Qt::TextWordWrap, text);
}

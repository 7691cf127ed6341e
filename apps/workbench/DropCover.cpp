#include "DropCover.h"

#include "TavrelColors.h"

#include <QPainter>

DropCover::DropCover(QWidget& window) : QWidget(&window) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void DropCover::showEvent(QShowEvent* event) {
    resize(parentWidget()->size());
    raise();
    QWidget::showEvent(event);
}

void DropCover::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor veil = palette().color(QPalette::Window);
    veil.setAlphaF(0.85);
    painter.fillRect(rect(), veil);
    painter.setPen(QPen(TavrelColors::accent(palette()), 2));
    painter.drawRoundedRect(QRectF(rect()).adjusted(16, 16, -16, -16), 4, 4);
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.25);
    painter.setFont(large);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(rect().adjusted(32, 32, -32, -32), Qt::AlignCenter | Qt::TextWordWrap,
                     tr("Drop files and folders here: raw Rock-Eval files, tables, a project",
                        "Déposez ici des fichiers et des dossiers : fichiers Rock-Eval bruts, tableaux, un "
                        "projet"));
}

#include "MouseDrop.h"

#include <QCoreApplication>
#include <QDragEnterEvent>
#include <QWidget>

void MouseDrop::on(QWidget& target, const QMimeData& data) {
    const QPoint place = target.rect().center();
    // Only what was entered can be dropped on.
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&target, &enter);
    QDropEvent drop(place, Qt::CopyAction, &data, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&target, &drop);
}

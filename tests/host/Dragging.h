#pragma once

#include <QCoreApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QWidget>

/// Sends a drag's event, QDragEnterEvent, QDragMoveEvent or QDropEvent, to a list's viewport as the window
/// system does; true if it was accepted.
template <typename Event>
bool deliver(QWidget* viewport, const QMimeData& data) {
    Event event(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    event.ignore();
    QCoreApplication::sendEvent(viewport, &event);
    return event.isAccepted();
}

#include "FileDrop.h"

#include "DropCover.h"
#include "TLocalFiles.h"

#include <QDropEvent>
#include <QWidget>

FileDrop::FileDrop(QWidget& window) : m_cover(new DropCover(window)) {
    window.setAcceptDrops(true);
    window.installEventFilter(this);
}

bool FileDrop::eventFilter(QObject*, QEvent* event) {
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        break;
    case QEvent::DragLeave:
        m_cover->hide();
        return true;
    default:
        return false;
    }
    auto& drag = static_cast<QDropEvent&>(*event);
    const QStringList paths = TLocalFiles::of(drag.mimeData());
    drag.setAccepted(!paths.isEmpty());
    m_cover->setVisible(!paths.isEmpty() && event->type() != QEvent::Drop);
    if (event->type() == QEvent::Drop && !paths.isEmpty()) {
        drag.setDropAction(Qt::CopyAction); // else a file manager may take the files away
        QMetaObject::invokeMethod(this, "dropped", Qt::QueuedConnection, Q_ARG(QStringList, paths));
    }
    return true;
}

#include "FileDrop.h"

#include "DropCover.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

FileDrop::FileDrop(QWidget& window) : m_cover(new DropCover(window)) {
    window.setAcceptDrops(true);
    window.installEventFilter(this);
}

QStringList FileDrop::filesOf(const QMimeData* data) {
    QStringList paths;
    const QList<QUrl> urls = data == nullptr ? QList<QUrl>() : data->urls();
    for (const QUrl& url : urls) {
        if (url.isLocalFile()) {
            paths.append(url.toLocalFile());
        }
    }
    return paths;
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
    const QStringList paths = filesOf(drag.mimeData());
    drag.setAccepted(!paths.isEmpty());
    m_cover->setVisible(!paths.isEmpty() && event->type() != QEvent::Drop);
    if (event->type() == QEvent::Drop && !paths.isEmpty()) {
        drag.setDropAction(Qt::CopyAction); // else a file manager may take the files away
        QMetaObject::invokeMethod(this, "dropped", Qt::QueuedConnection, Q_ARG(QStringList, paths));
    }
    return true;
}

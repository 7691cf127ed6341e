#include "VKModuleViewerMgr.h"

#include "ApplicationInterface.h"
#include "TEditor.h"
#include "VKViewer2D.h"

#include <QKeyEvent>
#include <QMouseEvent>

VKModuleViewerMgr::VKModuleViewerMgr() = default;

VKModuleViewerMgr::~VKModuleViewerMgr() = default;

void VKModuleViewerMgr::setReadOnly(bool readOnly) {
    m_readOnly = readOnly;
}

bool VKModuleViewerMgr::connectToViewer(TechPlot::VKViewer2D* viewer) {
    return hear(viewer, Heard::all);
}

void VKModuleViewerMgr::disconnectFromViewer(TechPlot::VKViewer2D* viewer) {
    ignore(viewer);
}

bool VKModuleViewerMgr::connectToEditor(TechPlot::TEditor* editor) {
    return hear(editor, Heard::keys);
}

bool VKModuleViewerMgr::connectToViewerConst(TechPlot::VKViewer2D* viewer) {
    return hear(viewer, Heard::looking);
}

bool VKModuleViewerMgr::hear(QWidget* widget, Heard what) {
    if (widget == nullptr) {
        return false;
    }
    if (!m_heard.contains(widget)) {
        widget->installEventFilter(this);
        connect(widget, &QObject::destroyed, this, [this](QObject* gone) { m_heard.remove(gone); });
    }
    m_heard.insert(widget, what);
    return true;
}

void VKModuleViewerMgr::ignore(QObject* widget) {
    if (m_heard.remove(widget) == 0) {
        return;
    }
    widget->removeEventFilter(this);
    disconnect(widget, &QObject::destroyed, this, nullptr);
}

bool VKModuleViewerMgr::eventFilter(QObject* watched, QEvent* event) {
    const auto heard = m_heard.constFind(watched);
    if (heard == m_heard.constEnd()) {
        return false;
    }
    const Heard what = *heard; // the entry may go in what is called here
    switch (event->type()) {
    case QEvent::KeyPress:
        keyPressed(static_cast<QKeyEvent*>(event), what);
        break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
        if (what != Heard::keys) {
            mouseUsed(static_cast<QWidget*>(watched), static_cast<QMouseEvent*>(event), what);
        }
        break;
    default:
        break;
    }
    return false;
}

void VKModuleViewerMgr::mouseUsed(QWidget* viewer, QMouseEvent* event, Heard what) {
    const QPoint position = event->pos();
    if (event->type() == QEvent::MouseMove) {
        if (edits(what) && event->buttons().testFlag(Qt::LeftButton)) {
            slotMove(position);
        }
        return;
    }
    if (event->button() != Qt::LeftButton) {
        return;
    }
    if (event->type() == QEvent::MouseButtonPress) {
        pressed(viewer, position, what);
    } else if (event->type() == QEvent::MouseButtonDblClick) {
        slotDoubleClick(viewer);
    } else if (edits(what)) {
        slotRelease(position);
    }
}

void VKModuleViewerMgr::pressed(QWidget* viewer, const QPoint& position, Heard what) {
    slotSelectViewer(viewer);
    if (edits(what)) {
        slotSelect(position);
    }
}

void VKModuleViewerMgr::keyPressed(QKeyEvent* event, Heard what) {
    if (event->key() == Qt::Key_F1) {
        slotHelp();
    } else if (event->key() == Qt::Key_Delete && edits(what)) {
        slotDelete();
    } else if (event->key() == Qt::Key_Insert && edits(what)) {
        slotAdd();
    } else {
        slotKeyPress(event);
    }
}

void VKModuleViewerMgr::slotUserAction(int) {}

void VKModuleViewerMgr::slotDoubleClickOnPlotter(TechPlot::TNode*) {}

void VKModuleViewerMgr::slotDoubleClick(QWidget*) {}

void VKModuleViewerMgr::slotAdd() {}

void VKModuleViewerMgr::slotMove(const QPoint&) {}

void VKModuleViewerMgr::slotDelete() {}

void VKModuleViewerMgr::slotSelect(const QPoint&) {}

void VKModuleViewerMgr::slotRelease(const QPoint&) {}

void VKModuleViewerMgr::slotMgrPropertyUpdate() {}

void VKModuleViewerMgr::slotSelectViewer(QWidget* viewer) {
    m_selected = viewer;
}

void VKModuleViewerMgr::slotViewerClosed() {}

void VKModuleViewerMgr::slotKeyPress(QKeyEvent*) {}

void VKModuleViewerMgr::slotHelp() {
    if (auto* const application = ApplicationInterface::returnMe()) {
        application->showHelp(getIdForHelp());
    }
}

void VKModuleViewerMgr::slotModuleClosing() {
    const QList<QObject*> heard = m_heard.keys();
    for (QObject* const widget : heard) {
        ignore(widget);
    }
}

#include "HelpDesk.h"

#include "HelpId.h"
#include "HelpInterface.h"
#include "HelpPage.h"
#include "Workspace.h"

#include <QApplication>
#include <QKeyEvent>

namespace {

constexpr QSize windowSize(720, 560);

int pageOf(const QWidget* widget) {
    for (; widget != nullptr; widget = widget->parentWidget()) {
        if (const auto* const part = dynamic_cast<const HelpInterface*>(widget)) {
            return part->getIdForHelp();
        }
    }
    return HelpId::start;
}

bool isHelpKey(const QEvent& event) {
    return event.type() == QEvent::KeyPress && static_cast<const QKeyEvent&>(event).key() == Qt::Key_F1 &&
           static_cast<const QKeyEvent&>(event).modifiers() == Qt::NoModifier;
}

} // namespace

HelpDesk::HelpDesk(Workspace& workspace) : m_workspace(workspace) {
    QCoreApplication::instance()->installEventFilter(this);
}

HelpDesk::~HelpDesk() = default;

void HelpDesk::show(int helpId) {
    if (QWidget* const dialog = QApplication::activeModalWidget()) {
        showAbove(*dialog, helpId);
        return;
    }
    if (m_page != nullptr && m_workspace.showPage(m_page)) {
        m_page->turnTo(helpId);
        return;
    }
    m_page = new HelpPage(helpId);
    m_workspace.addPage(m_page);
}

void HelpDesk::showForFocus() {
    const QWidget* const focus = QApplication::focusWidget();
    show(pageOf(focus != nullptr ? focus : QApplication::activeModalWidget()));
}

/// The window's shortcut is out of reach while a dialog is open.
bool HelpDesk::eventFilter(QObject* watched, QEvent* event) {
    if (!watched->isWidgetType() || !isHelpKey(*event) || QApplication::activeModalWidget() == nullptr) {
        return false;
    }
    showForFocus();
    return true;
}

void HelpDesk::showAbove(QWidget& dialog, int helpId) {
    auto* page = dialog.findChild<HelpPage*>();
    if (page == nullptr) {
        page = new HelpPage(helpId, &dialog);
        page->setWindowFlag(Qt::Window);
        page->resize(windowSize);
    } else {
        page->turnTo(helpId);
    }
    page->show();
    page->raise();
}

#include "ModuleObserver.h"

#include <QAction>

ModuleObserver::ModuleObserver() = default;

ModuleObserver::~ModuleObserver() {
    for (const Attached& attached : qAsConst(m_attached)) {
        QObject::disconnect(attached.connection);
    }
}

void ModuleObserver::actionTriggered(int number) {
    switch (number) {
    case saveAction:
        genericSave();
        break;
    case dataEditorAction:
        showDataEditor();
        break;
    case helpAction:
        help();
        break;
    default:
        break;
    }
}

void ModuleObserver::setActionEnabled(int number, bool enabled) {
    Attached& attached = m_attached[number];
    attached.enabled = enabled;
    if (attached.action != nullptr) {
        attached.action->setEnabled(enabled);
    }
}

void ModuleObserver::showDataEditor() {}

void ModuleObserver::genericSave() {}

void ModuleObserver::help() {}

void ModuleObserver::attachAction(int number, QAction* action) {
    Attached& attached = m_attached[number];
    QObject::disconnect(attached.connection);
    attached.connection = {};
    attached.action = action;
    if (action == nullptr) {
        return;
    }
    action->setEnabled(attached.enabled);
    attached.connection =
        QObject::connect(action, &QAction::triggered, action, [this, number] { actionTriggered(number); });
}

#include "TModuleCtrl.h"

#include <QAction>

#include <utility>

TModuleCtrl::TModuleCtrl() = default;

TModuleCtrl::~TModuleCtrl() = default;

bool TModuleCtrl::save() {
    return true;
}

bool TModuleCtrl::hasSomethingToSave() const {
    return false;
}

bool TModuleCtrl::load() {
    return true;
}

void TModuleCtrl::close() {}

int TModuleCtrl::getIdForHelp() const {
    return 0;
}

void TModuleCtrl::initActions() {}

QMap<int, QAction*> TModuleCtrl::getActionList() {
    if (!std::exchange(m_actionsMade, true)) {
        initActions();
    }
    QMap<int, QAction*> list;
    for (const auto& [number, action] : m_actions) {
        list.insert(number, action.get());
    }
    return list;
}

TDataModel* TModuleCtrl::initDataEditor() {
    return nullptr;
}

bool TModuleCtrl::SaveRequested() {
    return !hasSomethingToSave() || save();
}

void TModuleCtrl::addAction(int number, std::unique_ptr<QAction> action) {
    m_actions[number] = std::move(action);
}

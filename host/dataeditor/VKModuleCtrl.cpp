#include "VKModuleCtrl.h"

#include "ApplicationInterface.h"
#include "HelpInterface.h"
#include "MessageLoggerInterface.h"
#include "ModuleLauncherInterface.h"
#include "VKDataModel.h"

#include <QAction>

#include <memory>

VKModuleCtrl::VKModuleCtrl(const QString& key) : m_key(key) {}

VKModuleCtrl::~VKModuleCtrl() = default;

void VKModuleCtrl::close() {
    if (auto* const launcher = ModuleLauncherInterface::returnMe()) {
        launcher->closeModule(this);
    }
}

void VKModuleCtrl::setActionEnabled(int number, bool enabled) {
    if (QAction* const own = getActionList().value(number)) {
        own->setEnabled(enabled);
        return;
    }
    ModuleObserver::setActionEnabled(number, enabled);
}

void VKModuleCtrl::showDataEditor() {
    std::unique_ptr<TDataModel> table(initDataEditor());
    auto* const model = dynamic_cast<VKDataModel*>(table.get());
    if (model == nullptr) {
        MessageLoggerInterface::Information(tr("This module has no table of results to show",
                                               "Ce module n'a pas de tableau de résultats à afficher"));
        return;
    }
    if (auto* const launcher = ModuleLauncherInterface::returnMe()) {
        static_cast<void>(table.release()); // the launcher takes it over
        launcher->openDataEditor(model);
    }
}

void VKModuleCtrl::genericSave() {
    if (!SaveRequested()) {
        MessageLoggerInterface::Error(
            tr("The module's data could not be saved; check that the project can be written",
               "Les données du module n'ont pas pu être enregistrées ; vérifiez que le "
               "projet est accessible en écriture"));
    }
}

void VKModuleCtrl::help() {
    if (auto* const application = ApplicationInterface::returnMe()) {
        application->showHelp(attachedHelp() != nullptr ? attachedHelp()->getIdForHelp() : getIdForHelp());
    }
}

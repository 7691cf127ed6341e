#include "ModuleLauncher.h"

#include "TModuleCtrl.h"
#include "VKDataModel.h"
#include "Workspace.h"

#include <algorithm>
#include <memory>
#include <utility>

ModuleLauncher::ModuleLauncher(Workspace& workspace) : m_workspace(workspace) {}

ModuleLauncher::~ModuleLauncher() {
    for (const Module& each : std::exchange(m_modules, {})) {
        delete each.object;
    }
}

void ModuleLauncher::closeModule(TModuleCtrl* module) {
    const auto place = std::find_if(m_modules.begin(), m_modules.end(),
                                    [module](const Module& each) { return each.module == module; });
    if (place == m_modules.end() || !module->SaveRequested()) {
        return;
    }
    // Not now: the call may come from a slot of one of the module's own parts.
    place->object->deleteLater();
    m_modules.erase(place);
}

void ModuleLauncher::openDataEditor(VKDataModel* model) {
    m_workspace.addTable(std::unique_ptr<VKDataModel>(model));
}

bool ModuleLauncher::closeAll() {
    const bool saved = std::all_of(m_modules.begin(), m_modules.end(),
                                   [](const Module& each) { return each.module->SaveRequested(); });
    if (!saved) {
        return false;
    }
    for (const Module& each : std::exchange(m_modules, {})) {
        delete each.object;
    }
    return true;
}

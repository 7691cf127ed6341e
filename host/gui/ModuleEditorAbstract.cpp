#include "ModuleEditorAbstract.h"

#include "VKError.h"
#include "VKRibbonModuleBar.h"

ModuleEditorAbstract::~ModuleEditorAbstract() = default;

// By value, as modules override it.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
void ModuleEditorAbstract::createActionGroup(QMap<int, QAction*> actions) {
    bar().setActions(actions);
}

void ModuleEditorAbstract::registerObserver(ModuleObserver* observer) {
    bar().setObserver(observer);
}

void ModuleEditorAbstract::unregisterObserver() {
    bar().setObserver(nullptr);
}

VKRibbonModuleBar& ModuleEditorAbstract::bar() {
    auto* const own = dynamic_cast<VKRibbonModuleBar*>(this);
    if (own == nullptr) {
        throw VKError(VKRibbonModuleBar::tr(
            "A module's editor has no ribbon bar: derive it from VKRibbonModuleBar.",
            "L'éditeur d'un module n'a pas de barre : dérivez-le de VKRibbonModuleBar."));
    }
    return *own;
}

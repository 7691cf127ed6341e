#include "ModuleLauncherInterface.h"

#include "Registration.h"

namespace {

Registration<ModuleLauncherInterface>& registration() {
    static Registration<ModuleLauncherInterface> only("ModuleLauncherInterface");
    return only;
}

} // namespace

ModuleLauncherInterface::ModuleLauncherInterface() {
    registration().enter(this);
}

ModuleLauncherInterface::~ModuleLauncherInterface() {
    registration().leave(this);
}

ModuleLauncherInterface* ModuleLauncherInterface::returnMe() {
    return registration().registered();
}

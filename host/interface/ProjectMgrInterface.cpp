#include "ProjectMgrInterface.h"

#include "Registration.h"

namespace {

Registration<ProjectMgrInterface>& registration() {
    static Registration<ProjectMgrInterface> only("ProjectMgrInterface");
    return only;
}

} // namespace

ProjectMgrInterface::ProjectMgrInterface() {
    registration().enter(this);
}

ProjectMgrInterface::~ProjectMgrInterface() {
    registration().leave(this);
}

ProjectMgrInterface* ProjectMgrInterface::returnMe() {
    return registration().registered();
}

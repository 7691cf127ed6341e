#include "WorkspaceInterface.h"

#include "Registration.h"

namespace {

Registration<WorkspaceInterface>& registration() {
    static Registration<WorkspaceInterface> only("WorkspaceInterface");
    return only;
}

} // namespace

WorkspaceInterface::WorkspaceInterface() {
    registration().enter(this);
}

WorkspaceInterface::~WorkspaceInterface() {
    registration().leave(this);
}

WorkspaceInterface* WorkspaceInterface::returnMe() {
    return registration().registered();
}

#include "ApplicationInterface.h"

#include "Registration.h"

namespace {

Registration<ApplicationInterface>& registration() {
    static Registration<ApplicationInterface> only("ApplicationInterface");
    return only;
}

} // namespace

ApplicationInterface::ApplicationInterface() {
    registration().enter(this);
}

ApplicationInterface::~ApplicationInterface() {
    registration().leave(this);
}

ApplicationInterface* ApplicationInterface::returnMe() {
    return registration().registered();
}

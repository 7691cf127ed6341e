#include "RibbonInterface.h"

#include "Registration.h"

namespace {

Registration<RibbonInterface>& registration() {
    static Registration<RibbonInterface> only("RibbonInterface");
    return only;
}

} // namespace

RibbonInterface::RibbonInterface() {
    registration().enter(this);
}

RibbonInterface::~RibbonInterface() {
    registration().leave(this);
}

RibbonInterface* RibbonInterface::returnMe() {
    return registration().registered();
}

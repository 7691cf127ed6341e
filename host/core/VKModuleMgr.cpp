#include "VKModuleMgr.h"

VKModuleMgr::~VKModuleMgr() = default;

int VKModuleMgr::getIdForHelp() const {
    return 0;
}

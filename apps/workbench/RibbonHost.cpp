#include "RibbonHost.h"

#include "VKRibbon.h"
#include "VKRibbonModuleBar.h"

RibbonHost::RibbonHost(VKRibbon& ribbon) : m_ribbon(ribbon) {}

RibbonHost::~RibbonHost() = default;

void RibbonHost::addModuleBar(VKRibbonModuleBar* bar, bool current, bool closable) {
    if (bar == nullptr) {
        return;
    }
    const bool known = m_ribbon.bars().contains(bar);
    m_ribbon.addBar(bar, closable, current);
    if (!known) {
        emit barAdded(bar);
    }
}

void RibbonHost::removeModuleBar(VKRibbonModuleBar* bar) {
    m_ribbon.removeBar(bar);
}

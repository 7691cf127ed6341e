#include "RibbonHost.h"

#include "VKRibbon.h"
#include "VKRibbonModuleBar.h"

#include <utility>

RibbonHost::RibbonHost(VKRibbon& ribbon) : m_ribbon(ribbon) {}

RibbonHost::~RibbonHost() = default;

void RibbonHost::addModuleBar(VKRibbonModuleBar* bar, bool current, bool closable) {
    if (bar == nullptr) {
        return;
    }
    const bool known = m_ribbon.bars().contains(bar);
    m_ribbon.addBar(bar, closable, current);
    if (!known) {
        m_added = bar;
    }
}

void RibbonHost::removeModuleBar(VKRibbonModuleBar* bar) {
    m_ribbon.removeBar(bar);
    emit removed(bar);
}

VKRibbonModuleBar* RibbonHost::barAddedBy(const std::function<void()>& make) {
    m_added = nullptr;
    make();
    return std::exchange(m_added, nullptr);
}

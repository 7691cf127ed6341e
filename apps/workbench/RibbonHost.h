#pragma once

#include "RibbonInterface.h"

#include <QObject>

#include <functional>

class VKRibbon;

/// The main window's ribbon as modules reach it. The ribbon outlives this object.
class RibbonHost : public QObject, public RibbonInterface {
    Q_OBJECT

public:
    explicit RibbonHost(VKRibbon& ribbon);
    ~RibbonHost() override;

    void addModuleBar(VKRibbonModuleBar* bar, bool current, bool closable) override;
    void removeModuleBar(VKRibbonModuleBar* bar) override;

    /// The bar that enters the ribbon while `make` runs, null if none does: a module enters while it is made,
    /// and tells nobody else which bar is its own.
    VKRibbonModuleBar* barAddedBy(const std::function<void()>& make);

signals:
    /// A bar has left the ribbon; it may be about to be destroyed.
    void removed(VKRibbonModuleBar* bar);

private:
    VKRibbon& m_ribbon;
    VKRibbonModuleBar* m_added = nullptr;
};

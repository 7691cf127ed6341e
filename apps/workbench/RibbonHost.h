#pragma once

#include "RibbonInterface.h"

#include <QObject>

class VKRibbon;

/// The main window's ribbon as modules reach it. The ribbon outlives this object.
class RibbonHost : public QObject, public RibbonInterface {
    Q_OBJECT

public:
    explicit RibbonHost(VKRibbon& ribbon);
    ~RibbonHost() override;

    void addModuleBar(VKRibbonModuleBar* bar, bool current, bool closable) override;
    void removeModuleBar(VKRibbonModuleBar* bar) override;

signals:
    /// A bar that was not there before has entered the ribbon.
    void barAdded(VKRibbonModuleBar* bar);

private:
    VKRibbon& m_ribbon;
};

#pragma once

class VKRibbonModuleBar;

/// The ribbon on top of the main window.
///
/// Implemented by the application, and registered for as long as the implementation lives. For the
/// interface thread only.
class RibbonInterface {
public:
    virtual ~RibbonInterface();
    RibbonInterface(const RibbonInterface&) = delete;
    RibbonInterface& operator=(const RibbonInterface&) = delete;

    /// The registered implementation, or null. Ask each time: it may come and go.
    static RibbonInterface* returnMe();

    /// Gives a module's bar a tab of its own, under the bar's title. The bar stays its maker's; while it is
    /// in the ribbon, the ribbon is its parent. A bar that is there already is only brought to front.
    /// `current` brings the tab to front, `closable` gives it a close button that calls `closeRequested`.
    virtual void addModuleBar(VKRibbonModuleBar* bar, bool current, bool closable) = 0;

    /// Takes the bar's tab away and the bar out of its parent, hidden. A bar that is not there, or null, is
    /// ignored. The bar itself lives on.
    virtual void removeModuleBar(VKRibbonModuleBar* bar) = 0;

protected:
    /// Registers this object. A second one while the first lives is refused with a warning.
    RibbonInterface();
};

#pragma once

class TModuleCtrl;
class VKDataModel;

/// Starts and ends modules.
///
/// Implemented by the application, and registered for as long as the implementation lives. For the
/// interface thread only.
class ModuleLauncherInterface {
public:
    virtual ~ModuleLauncherInterface();
    ModuleLauncherInterface(const ModuleLauncherInterface&) = delete;
    ModuleLauncherInterface& operator=(const ModuleLauncherInterface&) = delete;

    /// The registered implementation, or null. Ask each time: it may come and go.
    static ModuleLauncherInterface* returnMe();

    /// Ends a module: it is deleted after the running event, once however often this is asked. May be called
    /// from the module's own parts. Null and an unknown module are ignored.
    virtual void closeModule(TModuleCtrl* module) = 0;

    /// Shows a table in the data editor under its name, and takes it over. Null is ignored.
    virtual void openDataEditor(VKDataModel* model) = 0;

protected:
    /// Registers this object. A second one while the first lives is refused with a warning.
    ModuleLauncherInterface();
};

#pragma once

#include <QMap>

class ModuleObserver;
class QAction;
class VKRibbonModuleBar;

/// The face that a module's controller uses of its editor. An editor derives from VKRibbonModuleBar and from
/// this class; what is asked for here happens on the bar. On an object that is no VKRibbonModuleBar, or one
/// not built that far yet, the operations throw VKError.
class ModuleEditorAbstract {
public:
    ModuleEditorAbstract() = default;
    virtual ~ModuleEditorAbstract();
    ModuleEditorAbstract(const ModuleEditorAbstract&) = delete;
    ModuleEditorAbstract& operator=(const ModuleEditorAbstract&) = delete;

    /// Fills the bar's action group with a button per action; none for an empty map. The number of a
    /// triggered action goes to the observer's actionTriggered.
    virtual void createActionGroup(QMap<int, QAction*> actions);
    /// The observer isn't owned. Null is as good as unregisterObserver.
    virtual void registerObserver(ModuleObserver* observer);
    virtual void unregisterObserver();

private:
    VKRibbonModuleBar& bar();
};

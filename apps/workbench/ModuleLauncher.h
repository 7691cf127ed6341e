#pragma once

#include "ModuleLauncherInterface.h"

#include <QObject>
#include <QVector>

class TModuleCtrl;
class Workspace;

/// Keeps the open modules and ends them; shows their tables in the workspace.
class ModuleLauncher : public QObject, public ModuleLauncherInterface {
    Q_OBJECT

public:
    /// The workspace outlives this object.
    explicit ModuleLauncher(Workspace& workspace);
    /// Ends the modules that are left.
    ~ModuleLauncher() override;

    /// Takes over a controller: one object, seen as a QObject and as a module.
    template <class Controller>
    void adopt(Controller* controller) {
        m_modules.append(Module{controller, controller});
    }

    void closeModule(TModuleCtrl* module) override;
    void openDataEditor(VKDataModel* model) override;

    /// Saves what the modules have to save and ends them before it returns; not for a module's own slots.
    /// False, with all of them open, if one could not save.
    bool closeAll();

private:
    struct Module {
        QObject* object;
        TModuleCtrl* module;
    };

    Workspace& m_workspace;
    QVector<Module> m_modules;
};

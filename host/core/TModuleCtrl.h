#pragma once

#include "TModuleLicenseTester.h"

#include <QMap>

#include <map>
#include <memory>

class QAction;
class TDataModel;

/// What the host knows of a module: its life, its actions, and what it has to save.
///
/// A module that keeps nothing but what is in the project's database, as most do, takes all of this as it
/// comes. Lives on the interface thread. The host deletes a module through this class.
class TModuleCtrl : public TModuleLicenseTester {
public:
    TModuleCtrl();
    ~TModuleCtrl() override;

    /// Writes what is not stored yet. False if that failed; the module has then said why.
    virtual bool save();

    /// Whether `save` would write anything.
    virtual bool hasSomethingToSave() const;

    /// Reads the module's own state back when a project is opened. False if that failed.
    virtual bool load();

    /// Asks the module to end. It may live on until the running event is done.
    virtual void close();

    /// Page of the user guide; 0 is the guide's first page.
    virtual int getIdForHelp() const;

    /// Makes the module's own actions, each with one call of `addAction`. Called once, when they are first
    /// asked for.
    virtual void initActions();

    /// The module's own actions by their number; they belong to the module.
    virtual QMap<int, QAction*> getActionList();

    /// A new table with the module's results, which passes to the caller; null if it has none to show.
    virtual TDataModel* initDataEditor();

    /// Called before the host ends the module: saves what there is to save. False keeps the module open.
    virtual bool SaveRequested();

protected:
    /// Takes `action` over; one of the same number is deleted.
    void addAction(int number, std::unique_ptr<QAction> action);

private:
    std::map<int, std::unique_ptr<QAction>> m_actions;
    bool m_actionsMade = false;
};

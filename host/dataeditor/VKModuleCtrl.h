#pragma once

#include "ModuleObserver.h"
#include "TModuleCtrl.h"

#include <QCoreApplication>
#include <QString>

/// A module that runs in the application: what its bar asks for is carried out through the application's
/// launcher, data editor and user guide. While there is no such part, nothing happens.
class VKModuleCtrl : public TModuleCtrl, public ModuleObserver {
    Q_DECLARE_TR_FUNCTIONS(VKModuleCtrl)

public:
    /// `key` names the family that the module belongs to. Modules of one family share it.
    explicit VKModuleCtrl(const QString& key);
    ~VKModuleCtrl() override;

    const QString& key() const { return m_key; }

    /// Asks the launcher to end this module.
    void close() override;

    /// Opens or bars the generic action that the bar attached or the module's own action of this number.
    void setActionEnabled(int number, bool enabled) override;

    /// Opens the table that `initDataEditor` makes; says so on the log if there is none.
    void showDataEditor() override;

    /// Saves if there is something to save; a failure is an Error on the log.
    void genericSave() override;

    /// Opens the page of the bar if it has one, else the module's own.
    void help() override;

private:
    QString m_key;
};

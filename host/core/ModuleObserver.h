#pragma once

#include <QHash>
#include <QMetaObject>
#include <QPointer>

class HelpInterface;
class QAction;

/// A module as its ribbon bar sees it: the bar tells it what the user asked for, and it tells the bar which
/// actions are open to him. Not deleted through this class.
///
/// The bar attaches the generic actions that it shows; from then on a triggered action comes in as
/// `actionTriggered` with its number, and `setActionEnabled` reaches it.
class ModuleObserver {
public:
    /// Numbers of the actions that every module may offer. A module's own actions have other numbers.
    static constexpr int saveAction = 97;
    static constexpr int dataEditorAction = 98;
    static constexpr int helpAction = 99;

    ModuleObserver(const ModuleObserver&) = delete;
    ModuleObserver& operator=(const ModuleObserver&) = delete;

    /// Carries a generic action out; any other number does nothing here.
    virtual void actionTriggered(int number);

    /// Opens or bars the attached action of this number. The choice is kept for an action attached later.
    virtual void setActionEnabled(int number, bool enabled);

    /// Opens the module's results as a table; nothing here.
    virtual void showDataEditor();

    /// Saves what the module has to save; nothing here.
    virtual void genericSave();

    /// Opens the module's page of the user guide; nothing here.
    virtual void help();

    /// Ties an action to a number, in the place of the one tied before; null unties. The action stays the
    /// caller's, and either side may be destroyed first. It is enabled if `setActionEnabled` said so, and
    /// barred otherwise.
    void attachAction(int number, QAction* action);

    /// Whose page `help` opens: the bar's, for as long as it is attached; null detaches it.
    void attachHelp(const HelpInterface* page) { m_page = page; }

protected:
    ModuleObserver();
    ~ModuleObserver();

    const HelpInterface* attachedHelp() const { return m_page; }

private:
    struct Attached {
        bool enabled = false;
        QPointer<QAction> action;
        QMetaObject::Connection connection;
    };

    QHash<int, Attached> m_attached;
    const HelpInterface* m_page = nullptr;
};

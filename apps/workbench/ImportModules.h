#pragma once

#include "ImportListener.h"
#include "VKRibbonModuleBar.h"

#include <QMap>
#include <QObject>
#include <QPointer>

#include <functional>

class ModuleLauncher;
class RibbonHost;

/// The import modules as the application's menus reach them. One of each kind is open at a time.
class ImportModules : public QObject {
    Q_OBJECT

public:
    enum class Kind { SourceRock, Gas, Custom };

    /// All outlive this object. The listener hears of each pass of a module, whoever asked for it.
    ImportModules(RibbonHost& ribbon, ModuleLauncher& launcher, ImportListener& listener);

    /// Opens the module, or brings it to front.
    void start(Kind kind);
    /// Drops the files on the module as a mouse would and presses its Import button; opens it before if need
    /// be. The wizard and the questions of the import are shown.
    void importFiles(Kind kind, const QStringList& paths);

    /// Null while the module isn't open.
    VKRibbonModuleBar* bar(Kind kind) const { return m_bars.value(kind).data(); }

private slots:
    void endPass();

private:
    void make(Kind kind);
    template <class Controller>
    void make(Kind kind);

    RibbonHost& m_ribbon;
    ModuleLauncher& m_launcher;
    ImportListener& m_listener;
    QMap<Kind, QPointer<VKRibbonModuleBar>> m_bars;
    QMap<Kind, std::function<ImportListener::Codes()>> m_codes; // of the files of an open module
};

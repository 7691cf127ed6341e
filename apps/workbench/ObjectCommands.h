#pragma once

#include "VKObject2.h"

#include <QList>
#include <QObject>

class ModuleLauncherInterface;
class QWidget;

/// What can be done with stored objects beyond the tree itself: show them as tables, write them as CSV.
/// Failures are on the log.
class ObjectCommands : public QObject {
    Q_OBJECT

public:
    /// `window` is the parent of the dialogs.
    ObjectCommands(ModuleLauncherInterface& launcher, QWidget& window);

    void open(const QList<const VKObject2*>& objects);
    void exportCsv(const QList<const VKObject2*>& objects);

private:
    ModuleLauncherInterface& m_launcher;
    QWidget& m_window;
};

#pragma once

#include <QStringList>

class QMimeData;

/// Files of this machine that a person brings to a window, by the mouse or through a dialog.
class TLocalFiles {
public:
    /// The paths of the local files in a drag or on the clipboard, in their order; none for null.
    static QStringList of(const QMimeData* data);

    /// The folder that a dialog asking for files begins in: the one of the last time, in all dialogs alike.
    static QString lastFolder();
    static void rememberFolder(const QString& folder);
};

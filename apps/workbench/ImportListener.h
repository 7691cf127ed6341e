#pragma once

#include <QHash>
#include <QString>

/// Hears how the import modules go through their files. Codes are those of the modules' lists
/// (`VornCtrl::importStatus`), under the paths as they were dropped.
class ImportListener {
public:
    using Codes = QHash<QString, int>;

    virtual ~ImportListener() = default;

    virtual void passBegan(const QString& module, const Codes& codes) = 0;
    /// A reader has taken the file. A file may be taken by several, one after the other.
    virtual void fileBegan(const QString& path) = 0;
    /// The import of the file is over, which stored something or nothing.
    virtual void fileEnded(bool stored) = 0;
    /// The same with a failure, told in restricted rich text.
    virtual void fileFailed(const QString& text) = 0;
    /// Also for a pass that ended before it began, as there was no file.
    virtual void passEnded(const Codes& codes) = 0;
};

#pragma once

#include <QCoreApplication>
#include <QLockFile>
#include <QString>

/// The life of one window's import database, to be seen by other windows and other processes: a lock file
/// in a folder of theirs, which ends with this object and counts for nothing once its process is gone.
class ImportSession {
    Q_DECLARE_TR_FUNCTIONS(ImportSession)

public:
    /// Begins a session and clears away the files of those whose process has ended without closing them.
    /// Throws VKError if the folder can't be written.
    explicit ImportSession(const QString& folder);

    const QString& id() const { return m_id; }

    /// Whether the session of this id goes on, this one included.
    bool isAlive(const QString& id) const;

private:
    QString pathOf(const QString& id) const;

    QString m_folder;
    QString m_id;
    QLockFile m_lock;
};

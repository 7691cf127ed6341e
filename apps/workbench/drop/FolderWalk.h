#pragma once

#include "FileKind.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSet>
#include <QStringList>
#include <QVector>

/// The files behind what was dropped: folders are replaced by what lies in them and below, each file comes
/// once. Links to folders are not followed, so that a walk ends; hidden files are left out without a word, as
/// file managers show none.
class FolderWalk {
    Q_DECLARE_TR_FUNCTIONS(FolderWalk)

public:
    /// More files than these are not walked through: a whole disk was dropped by mistake.
    static constexpr int defaultLimit = 20'000;

    explicit FolderWalk(const QStringList& dropped, int limit = defaultLimit);

    /// As they were dropped, those of a folder in the natural order of their names.
    const QStringList& files() const { return m_files; }
    /// What was dropped or found and is no file to be read, with the reason: an empty folder, one that can't
    /// be read, what is gone.
    const QVector<SortedFile>& refused() const { return m_refused; }

private:
    void take(const QFileInfo& entry, bool wasDropped);
    void open(const QString& folder);
    void refuse(const QString& path, const QString& reason);

    int m_limit;
    bool m_isFull = false;
    QFileInfoList m_waiting; // found in folders and not taken yet, the next one last
    QSet<QString> m_known;
    QStringList m_files;
    QVector<SortedFile> m_refused;
};

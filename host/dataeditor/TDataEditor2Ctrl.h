#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

class DatasetWriter;
class QAbstractItemModel;

namespace TechDB {
class TDatabase;
}

/// Stores tables as samples of datasets. What one object saves is one transaction of one database: it begins
/// with the first save and is written for good when the object is destroyed, so that a crash leaves the old
/// datasets whole. The database outlives the object, and no dialog is shown in between: no other window can
/// write meanwhile. A local variable, never part of another object: its destructor may throw.
class TDataEditor2Ctrl {
    Q_DECLARE_TR_FUNCTIONS(TDataEditor2Ctrl)

public:
    TDataEditor2Ctrl();
    /// Commits what was saved, also after a save that failed. If that can't be written, as on a full disk
    /// where every save may have succeeded, the project is as it was before: throws VKError, the only way to
    /// say so at this end; while another exception passes it is an Error on the log instead.
    ~TDataEditor2Ctrl() noexcept(false);
    TDataEditor2Ctrl(const TDataEditor2Ctrl&) = delete;
    TDataEditor2Ctrl& operator=(const TDataEditor2Ctrl&) = delete;

    /// Stores `model` as the sample of this name; null for the database means the open project's.
    ///
    /// A dataset that existed before this object is emptied by the first save that succeeds in it, and stays
    /// the same object with the same key. Saved again under one name, a sample keeps all it has and gets the
    /// model's columns behind its own: rows of one name are one row (the second of a name is that of the
    /// second), rows with new names come at the end. Blanks at the ends of a sample's name don't count, and
    /// line breaks and other control characters in it count as blanks.
    ///
    /// Headers and cells are read under `role`. Headers that are missing are numbers, counted from 1. Numbers
    /// of any type are stored as 8-byte numbers, texts as they are, and empty texts not at all. The
    /// properties of a VKDataModel are stored with the sample.
    ///
    /// False, with the cause as an Error on the log, and nothing changed by this call, if it can't be stored:
    /// no model, no database, another one than before, a name that none can have, a table that is too large,
    /// a number that is not finite. Throws nothing.
    bool save(QAbstractItemModel* model, const QString& dataset, const QString& sample, int role,
              TechDB::TDatabase* database);

private:
    void store(const QAbstractItemModel* model, const QString& dataset, const QString& sample, int role,
               TechDB::TDatabase* database);
    DatasetWriter& writerFor(TechDB::TDatabase& database);
    std::unique_ptr<DatasetWriter> begun(TechDB::TDatabase& database);

    const int m_unwinding;
    std::unique_ptr<DatasetWriter> m_writer;
    std::optional<QString> m_whyNotBegun;
    QStringList m_datasets; // with something saved
};

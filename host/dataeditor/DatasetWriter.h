#pragma once

#include "Transaction.h"

#include <QHash>
#include <QSet>
#include <QString>
#include <QtGlobal>

class QAbstractItemModel;

namespace TechDB {
class TDatabase;
}

/// Writes samples into datasets of one database, as one transaction: all that came about is kept by `commit`,
/// and nothing without. Failures are thrown as VKError.
class DatasetWriter {
public:
    /// Begins the transaction; waits some seconds for another window's.
    explicit DatasetWriter(TechDB::TDatabase& database) : m_database(database), m_transaction(database) {}

    const TechDB::TDatabase* database() const { return &m_database; }

    /// Stores a model as a sample. The dataset is made, or emptied if it was there before this writer came to
    /// it; it keeps its key. Refused is one that another window made since this one looked and found none:
    /// what happens to it is for a person to say. To a sample that this writer stored before, the model's
    /// columns are added (TDatabase::addColumns). What fails leaves no trace, so that a dataset is not
    /// emptied for nothing.
    void write(const QAbstractItemModel& model, const QString& dataset, const QString& sample, int role);

    void commit() { m_transaction.commit(); }

private:
    qint64 startedDataset(const QString& name);

    TechDB::TDatabase& m_database;
    TechDB::Transaction m_transaction;
    /// What did not exist when the caller looked.
    QSet<QString> m_new;
    QHash<QString, qint64> m_datasets;
};

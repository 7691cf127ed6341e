#pragma once

#include "SampleTable.h"

#include <QCoreApplication>
#include <QHash>
#include <QStringList>
#include <QVector>

#include <memory>

class VKDataModelGeneric;

/// The samples of a dataset as one table: the sample's name and, if they say anything, its rows' names come
/// first, then the columns of all samples, each where it first occurred. Where a sample doesn't
/// have a column, its cells are empty.
///
/// A dataset that holds samples of a single column, and none of a single row, has its quantities down the
/// side: all its samples are turned then, so that each of them is a row. An import stores, behind the
/// samples, its table as a whole, which would say everything twice; it is a sample of its own in the tree.
class DatasetTable {
    Q_DECLARE_TR_FUNCTIONS(DatasetTable)

public:
    void add(const QString& name, const TechDB::SampleTable& sample);

    /// Throws VKError if the table would be too large.
    std::unique_ptr<VKDataModelGeneric> table() const;

private:
    struct Sample {
        QString name;
        TechDB::SampleTable table;
    };

    // A column by its name and by how often the sample has had that name before.
    using Column = QPair<QString, int>;

    static TechDB::SampleTable turned(const TechDB::SampleTable& sample);
    static bool lastRepeatsAll(const QVector<Sample>& samples);
    static bool areUpright(const QVector<Sample>& samples);
    static QVector<Column> columnsOf(const TechDB::SampleTable& sample);
    static std::unique_ptr<VKDataModelGeneric> joined(const QVector<Sample>& samples);
    static void fill(VKDataModelGeneric& table, int row, int firstColumn, const Sample& sample,
                     const QHash<Column, int>& places);

    QVector<Sample> m_samples;
};

#pragma once

#include "SampleTable.h"
#include "StoredObject.h"

#include <QVector>

#include <optional>

namespace TechDB {

class SqlConnection;

/// The datasets of a project as rows: each holds named samples, each sample is a table. Writing takes a
/// transaction of the caller's. Failures are thrown as VKError.
class DatasetStore {
public:
    /// More cells in one sample than any table of a laboratory has; a file that claims more is refused.
    static constexpr qint64 maximumCells = 20'000'000;

    explicit DatasetStore(SqlConnection& connection) : m_connection(connection) {}

    /// In the order of storing.
    QVector<DatasetInfo> all() const;
    std::optional<DatasetInfo> byName(const QString& name) const;
    std::optional<DatasetInfo> byKey(qint64 key) const;

    qint64 add(const QString& name);
    void rename(qint64 key, const QString& name);
    /// With all its samples.
    void remove(qint64 key);

    /// In the order of storing; none for an unknown dataset.
    QVector<SampleInfo> samples(qint64 dataset) const;
    /// Refuses a name that the dataset holds already and a table that `SampleTable` doesn't allow. A minus
    /// sign of zero is not kept.
    qint64 addSample(qint64 dataset, const QString& name, const SampleTable& table);
    SampleTable sampleTable(qint64 sample) const;

private:
    void addNames(const QString& statement, qint64 sample, const QStringList& names);
    void addProperties(qint64 sample, const QList<TProperty>& properties);
    void addValues(qint64 sample, const SampleTable& table);
    void readValues(qint64 sample, SampleTable& table) const;
    QStringList names(const QString& statement, qint64 sample) const;

    SqlConnection& m_connection;
};

} // namespace TechDB

#pragma once

#include "StoredObject.h"

#include <QVector>

#include <optional>

namespace TechDB {

class SqlConnection;

/// The datasets of a project as rows, and the named samples of each; their tables are in `SampleStore`.
/// Writing takes a transaction of the caller's. Failures are thrown as VKError.
class DatasetStore {
public:
    explicit DatasetStore(SqlConnection& connection) : m_connection(connection) {}

    /// In the order of storing.
    QVector<DatasetInfo> all() const;
    std::optional<DatasetInfo> byName(const QString& name) const;
    std::optional<DatasetInfo> byKey(qint64 key) const;

    qint64 add(const QString& name);
    void rename(qint64 key, const QString& name);
    /// Takes all samples out. The dataset keeps its key and its name; its instant becomes the present one.
    void empty(qint64 key);
    /// With all its samples.
    void remove(qint64 key);

    /// In the order of storing; none for an unknown dataset.
    QVector<SampleInfo> samples(qint64 dataset) const;
    std::optional<SampleInfo> sampleByName(qint64 dataset, const QString& name) const;
    /// The dataset that a sample stands in.
    qint64 datasetOf(qint64 sample) const;
    /// Adds a sample that has no table yet. Refuses a name that the dataset holds already.
    qint64 addSample(qint64 dataset, const QString& name);

private:
    SqlConnection& m_connection;
};

} // namespace TechDB

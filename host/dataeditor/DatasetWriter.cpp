#include "DatasetWriter.h"

#include "ModelSample.h"
#include "TDatabase.h"
#include "VKObject2Well.h"

#include <optional>

void DatasetWriter::write(const QAbstractItemModel& model, const QString& dataset, const QString& sample,
                          int role) {
    TechDB::Transaction savepoint(m_database);
    const auto known = m_datasets.constFind(dataset);
    const qint64 well = known == m_datasets.constEnd() ? startedDataset(dataset) : *known;
    const std::optional<TechDB::SampleInfo> stored = m_database.findSample(well, sample);
    if (stored) {
        m_database.addColumns(stored->key, ModelSample::read(model, role, stored->columnCount));
    } else {
        m_database.addSample(well, sample, ModelSample::read(model, role, 0));
    }
    savepoint.commit();
    m_datasets.insert(dataset, well);
}

qint64 DatasetWriter::startedDataset(const QString& name) {
    const VKObject2Well* const existing = m_database.getWell(name);
    if (existing == nullptr) {
        return m_database.addWell(name)->key();
    }
    m_database.emptyWell(existing->key());
    return existing->key();
}

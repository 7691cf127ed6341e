#include "DatasetWriter.h"

#include "ModelSample.h"
#include "TDatabase.h"
#include "VKError.h"
#include "VKObject2Well.h"

#include <QCoreApplication>

#include <optional>

namespace {

QString translated(const char* english, const char* french) {
    return QCoreApplication::translate("DatasetWriter", english, french);
}

} // namespace

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
    if (m_database.isThoughtFree(name)) {
        m_new.insert(name);
    }
    const VKObject2Well* const existing = m_database.getWell(name);
    if (existing == nullptr) {
        return m_database.addWell(name)->key();
    }
    if (m_new.contains(name)) { // nobody agreed to its being replaced
        throw VKError(
            translated("Another window has stored a dataset named <b>%1</b> in the meantime, which was "
                       "left as it is.",
                       "Une autre fenêtre a entre-temps enregistré un ensemble de données nommé "
                       "<b>%1</b>, qui est resté tel quel.")
                .arg(name.toHtmlEscaped()),
            {},
            translated("Import the file again: you are asked what to do.",
                       "Importez à nouveau le fichier : la question vous sera posée."));
    }
    m_database.emptyWell(existing->key());
    return existing->key();
}

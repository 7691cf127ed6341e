#include "DatasetStore.h"

#include "NameText.h"
#include "NaturalOrder.h"
#include "SqlConnection.h"
#include "SqlError.h"
#include "StoredInstant.h"
#include "StoredName.h"

#include <QCoreApplication>

namespace TechDB {

namespace {

QString translated(const char* english, const char* french) {
    return QCoreApplication::translate("TechDB::DatasetStore", english, french);
}

QString datasetQuery(const char* condition) {
    return QStringLiteral("SELECT d.id, d.name, d.created,"
                          " (SELECT count(*) FROM samples s WHERE s.dataset_id = d.id) FROM datasets d ") +
           QLatin1String(condition);
}

DatasetInfo datasetFrom(const QSqlQuery& row) {
    return {row.value(0).toLongLong(), row.value(1).toString(), StoredInstant::read(row.value(2)),
            row.value(3).toInt()};
}

/// A sample's positions run from 0 without gaps: the last one tells their number, without counting them.
QString sampleQuery(const char* condition) {
    return QStringLiteral("SELECT s.id, s.name,"
                          " (SELECT coalesce(max(r.position) + 1, 0) FROM sample_rows r"
                          " WHERE r.sample_id = s.id),"
                          " (SELECT coalesce(max(c.position) + 1, 0) FROM sample_columns c"
                          " WHERE c.sample_id = s.id)"
                          " FROM samples s WHERE s.dataset_id = ? ") +
           QLatin1String(condition);
}

SampleInfo sampleFrom(const QSqlQuery& row) {
    return {row.value(0).toLongLong(), row.value(1).toString(), row.value(2).toInt(), row.value(3).toInt()};
}

[[noreturn]] void throwTaken(const QString& text, const QString& name) {
    throw VKError(text.arg(name.toHtmlEscaped()), {},
                  translated("Choose another name.", "Choisissez un autre nom."));
}

[[noreturn]] void throwDatasetTaken(const QString& name) {
    throwTaken(translated("A dataset named <b>%1</b> is already stored.",
                          "Un ensemble de données nommé <b>%1</b> est déjà enregistré."),
               name);
}

[[noreturn]] void throwGone() {
    throw VKError(translated("The dataset is no longer in the project.",
                             "L'ensemble de données n'est plus dans le projet."),
                  {},
                  translated("Another window has deleted it: import its file again.",
                             "Une autre fenêtre l'a supprimé : importez à nouveau son fichier."));
}

} // namespace

QVector<DatasetInfo> DatasetStore::all() const {
    QVector<DatasetInfo> list;
    m_connection.select(datasetQuery("ORDER BY d.id"), {},
                        [&list](const QSqlQuery& row) { list.append(datasetFrom(row)); });
    return list;
}

std::optional<DatasetInfo> DatasetStore::byName(const QString& name) const {
    std::optional<DatasetInfo> found;
    m_connection.select(datasetQuery("WHERE d.name = ?"), {SqlConnection::text(name)},
                        [&found](const QSqlQuery& row) { found = datasetFrom(row); });
    return found;
}

std::optional<DatasetInfo> DatasetStore::byKey(qint64 key) const {
    std::optional<DatasetInfo> found;
    m_connection.select(datasetQuery("WHERE d.id = ?"), {key},
                        [&found](const QSqlQuery& row) { found = datasetFrom(row); });
    return found;
}

qint64 DatasetStore::add(const QString& name) {
    checkName(name);
    try {
        return m_connection.insert(
            QStringLiteral("INSERT INTO datasets (name, sort_key, search_name, created) VALUES (?, ?, ?, ?)"),
            {name, NaturalOrder::key(name), NameText::folded(name), StoredInstant::now()});
    } catch (const SqlError& error) {
        if (error.failure() == SqlFailure::NameTaken) {
            throwDatasetTaken(name);
        }
        throw;
    }
}

void DatasetStore::rename(qint64 key, const QString& name) {
    checkName(name);
    try {
        if (m_connection.execute(
                QStringLiteral("UPDATE datasets SET name = ?, sort_key = ?, search_name = ? WHERE id = ?"),
                {name, NaturalOrder::key(name), NameText::folded(name), key}) == 0) {
            throwGone();
        }
    } catch (const SqlError& error) {
        if (error.failure() == SqlFailure::NameTaken) {
            throwDatasetTaken(name);
        }
        throw;
    }
}

void DatasetStore::empty(qint64 key) {
    if (m_connection.execute(QStringLiteral("UPDATE datasets SET created = ? WHERE id = ?"),
                             {StoredInstant::now(), key}) == 0) {
        throwGone();
    }
    m_connection.execute(QStringLiteral("DELETE FROM samples WHERE dataset_id = ?"), {key});
}

void DatasetStore::remove(qint64 key) {
    if (m_connection.execute(QStringLiteral("DELETE FROM datasets WHERE id = ?"), {key}) == 0) {
        throwGone();
    }
}

QVector<SampleInfo> DatasetStore::samples(qint64 dataset) const {
    QVector<SampleInfo> list;
    m_connection.select(sampleQuery("ORDER BY s.id"), {dataset},
                        [&list](const QSqlQuery& row) { list.append(sampleFrom(row)); });
    return list;
}

std::optional<SampleInfo> DatasetStore::sampleByName(qint64 dataset, const QString& name) const {
    std::optional<SampleInfo> found;
    m_connection.select(sampleQuery("AND s.name = ?"), {dataset, SqlConnection::text(name)},
                        [&found](const QSqlQuery& row) { found = sampleFrom(row); });
    return found;
}

qint64 DatasetStore::datasetOf(qint64 sample) const {
    qint64 dataset = 0;
    m_connection.select(QStringLiteral("SELECT dataset_id FROM samples WHERE id = ?"), {sample},
                        [&dataset](const QSqlQuery& row) { dataset = row.value(0).toLongLong(); });
    if (dataset == 0) {
        throw VKError(
            translated("The sample is no longer in the project.", "L'échantillon n'est plus dans le projet."),
            {},
            translated("Another window has deleted it: import its file again.",
                       "Une autre fenêtre l'a supprimé : importez à nouveau son fichier."));
    }
    return dataset;
}

qint64 DatasetStore::addSample(qint64 dataset, const QString& name) {
    checkName(name);
    try {
        return m_connection.insert(
            QStringLiteral(
                "INSERT INTO samples (dataset_id, name, sort_key, search_name) VALUES (?, ?, ?, ?)"),
            {dataset, name, NaturalOrder::key(name), NameText::folded(name)});
    } catch (const SqlError& error) {
        if (error.failure() == SqlFailure::NameTaken) {
            throwTaken(translated("The dataset holds a sample named <b>%1</b> already.",
                                  "L'ensemble de données contient déjà un échantillon nommé <b>%1</b>."),
                       name);
        }
        throw;
    }
}

} // namespace TechDB

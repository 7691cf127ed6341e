#include "DatasetStore.h"

#include "SqlConnection.h"
#include "SqlError.h"
#include "StoredInstant.h"
#include "StoredName.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

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

DatasetInfo datasetOf(const QSqlQuery& row) {
    return {row.value(0).toLongLong(), row.value(1).toString(), StoredInstant::read(row.value(2)),
            row.value(3).toInt()};
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
                             "L'ensemble de données n'est plus dans le projet."));
}

[[noreturn]] void throwDamaged() {
    throw VKError(
        translated("The stored sample can't be read: its rows, columns and values don't fit together.",
                   "L'échantillon enregistré est illisible : lignes, colonnes et valeurs ne vont pas "
                   "ensemble."),
        {}, translated("Import the dataset again.", "Importez à nouveau l'ensemble de données."));
}

qint64 cellCount(const QStringList& rows, const QStringList& columns) {
    return qint64{rows.size()} * columns.size();
}

void checkTable(const QString& sample, const SampleTable& table) {
    const qint64 cells = cellCount(table.rowNames, table.columnNames);
    const bool numbersFinite = std::all_of(table.cells.begin(), table.cells.end(), [](const QVariant& cell) {
        return cell.type() != QVariant::Double || std::isfinite(cell.toDouble());
    });
    if (cells == table.cells.size() && cells <= DatasetStore::maximumCells && numbersFinite) {
        return;
    }
    throw VKError(
        translated("The sample <b>%1</b> was not stored: it has %2 rows, %3 columns and %4 values, %5.",
                   "L'échantillon <b>%1</b> n'a pas été enregistré : il a %2 lignes, %3 colonnes et %4 "
                   "valeurs, %5.")
            .arg(sample.toHtmlEscaped())
            .arg(table.rowNames.size())
            .arg(table.columnNames.size())
            .arg(table.cells.size())
            .arg(numbersFinite
                     ? translated("which don't fit together or are too many",
                                  "qui ne vont pas ensemble ou sont trop nombreux")
                     : translated("one of them no finite number", "dont une n'est pas un nombre fini")),
        {}, translated("Check the file that it came from.", "Vérifiez le fichier d'origine."));
}

} // namespace

QVector<DatasetInfo> DatasetStore::all() const {
    QVector<DatasetInfo> list;
    m_connection.select(datasetQuery("ORDER BY d.id"), {},
                        [&list](const QSqlQuery& row) { list.append(datasetOf(row)); });
    return list;
}

std::optional<DatasetInfo> DatasetStore::byName(const QString& name) const {
    std::optional<DatasetInfo> found;
    m_connection.select(datasetQuery("WHERE d.name = ?"), {SqlConnection::text(name)},
                        [&found](const QSqlQuery& row) { found = datasetOf(row); });
    return found;
}

std::optional<DatasetInfo> DatasetStore::byKey(qint64 key) const {
    std::optional<DatasetInfo> found;
    m_connection.select(datasetQuery("WHERE d.id = ?"), {key},
                        [&found](const QSqlQuery& row) { found = datasetOf(row); });
    return found;
}

qint64 DatasetStore::add(const QString& name) {
    checkName(name);
    try {
        return m_connection.insert(QStringLiteral("INSERT INTO datasets (name, created) VALUES (?, ?)"),
                                   {name, StoredInstant::now()});
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
        if (m_connection.execute(QStringLiteral("UPDATE datasets SET name = ? WHERE id = ?"), {name, key}) ==
            0) {
            throwGone();
        }
    } catch (const SqlError& error) {
        if (error.failure() == SqlFailure::NameTaken) {
            throwDatasetTaken(name);
        }
        throw;
    }
}

void DatasetStore::remove(qint64 key) {
    if (m_connection.execute(QStringLiteral("DELETE FROM datasets WHERE id = ?"), {key}) == 0) {
        throwGone();
    }
}

QVector<SampleInfo> DatasetStore::samples(qint64 dataset) const {
    QVector<SampleInfo> list;
    m_connection.select(QStringLiteral("SELECT s.id, s.name,"
                                       " (SELECT count(*) FROM sample_rows r WHERE r.sample_id = s.id),"
                                       " (SELECT count(*) FROM sample_columns c WHERE c.sample_id = s.id)"
                                       " FROM samples s WHERE s.dataset_id = ? ORDER BY s.id"),
                        {dataset}, [&list](const QSqlQuery& row) {
                            list.append({row.value(0).toLongLong(), row.value(1).toString(),
                                         row.value(2).toInt(), row.value(3).toInt()});
                        });
    return list;
}

qint64 DatasetStore::addSample(qint64 dataset, const QString& name, const SampleTable& table) {
    checkName(name);
    checkTable(name, table);
    qint64 sample = 0;
    try {
        sample = m_connection.insert(QStringLiteral("INSERT INTO samples (dataset_id, name) VALUES (?, ?)"),
                                     {dataset, name});
    } catch (const SqlError& error) {
        if (error.failure() == SqlFailure::NameTaken) {
            throwTaken(translated("The dataset holds a sample named <b>%1</b> already.",
                                  "L'ensemble de données contient déjà un échantillon nommé <b>%1</b>."),
                       name);
        }
        throw;
    }
    addNames(QStringLiteral("INSERT INTO sample_rows (sample_id, position, name) VALUES (?, ?, ?)"), sample,
             table.rowNames);
    addNames(QStringLiteral("INSERT INTO sample_columns (sample_id, position, name) VALUES (?, ?, ?)"),
             sample, table.columnNames);
    addProperties(sample, table.properties);
    addValues(sample, table);
    return sample;
}

void DatasetStore::addNames(const QString& statement, qint64 sample, const QStringList& names) {
    for (int position = 0; position < names.size(); ++position) {
        m_connection.execute(statement, {sample, position, SqlConnection::text(names.at(position))});
    }
}

void DatasetStore::addProperties(qint64 sample, const QList<TProperty>& properties) {
    for (int position = 0; position < properties.size(); ++position) {
        const TProperty& property = properties.at(position);
        m_connection.execute(
            QStringLiteral("INSERT INTO sample_properties (sample_id, position, name, value, unit, comment)"
                           " VALUES (?, ?, ?, ?, ?, ?)"),
            {sample, position, SqlConnection::text(property.name()), SqlConnection::text(property.value()),
             SqlConnection::text(property.unit()), SqlConnection::text(property.comment())});
    }
}

void DatasetStore::addValues(qint64 sample, const SampleTable& table) {
    const int columns = table.columnNames.size();
    for (int place = 0; place < table.cells.size(); ++place) {
        const QVariant& cell = table.cells.at(place);
        if (!cell.isValid()) {
            continue;
        }
        const bool number = cell.type() == QVariant::Double;
        m_connection.execute(
            QStringLiteral("INSERT INTO sample_values"
                           " (sample_id, row_position, column_position, number_value, text_value)"
                           " VALUES (?, ?, ?, ?, ?)"),
            {sample, place / columns, place % columns, number ? cell : QVariant(QVariant::Double),
             number ? QVariant(QVariant::String) : SqlConnection::text(cell.toString())});
    }
}

SampleTable DatasetStore::sampleTable(qint64 sample) const {
    SampleTable table;
    table.rowNames =
        names(QStringLiteral("SELECT position, name FROM sample_rows WHERE sample_id = ? ORDER BY position"),
              sample);
    table.columnNames = names(
        QStringLiteral("SELECT position, name FROM sample_columns WHERE sample_id = ? ORDER BY position"),
        sample);
    m_connection.select(QStringLiteral("SELECT name, value, unit, comment FROM sample_properties"
                                       " WHERE sample_id = ? ORDER BY position"),
                        {sample}, [&table](const QSqlQuery& row) {
                            table.properties.append(
                                TProperty(row.value(0).toString(), row.value(1).toString(),
                                          row.value(2).toString(), row.value(3).toString()));
                        });
    readValues(sample, table);
    return table;
}

void DatasetStore::readValues(qint64 sample, SampleTable& table) const {
    const int rows = table.rowNames.size();
    const int columns = table.columnNames.size();
    if (cellCount(table.rowNames, table.columnNames) > maximumCells) {
        throwDamaged();
    }
    table.cells.resize(rows * columns);
    m_connection.select(QStringLiteral("SELECT row_position, column_position, number_value, text_value"
                                       " FROM sample_values WHERE sample_id = ?"),
                        {sample}, [&](const QSqlQuery& found) {
                            const qint64 row = found.value(0).toLongLong();
                            const qint64 column = found.value(1).toLongLong();
                            if (row < 0 || row >= rows || column < 0 || column >= columns) {
                                throwDamaged();
                            }
                            table.cells[static_cast<int>(row * columns + column)] =
                                found.isNull(2) ? QVariant(found.value(3).toString())
                                                : QVariant(found.value(2).toDouble());
                        });
}

QStringList DatasetStore::names(const QString& statement, qint64 sample) const {
    QStringList list;
    m_connection.select(statement, {sample}, [&list](const QSqlQuery& row) {
        if (row.value(0).toLongLong() != list.size()) {
            throwDamaged();
        }
        list.append(row.value(1).toString());
    });
    return list;
}

} // namespace TechDB

#include "SampleStore.h"

#include "BulkInsert.h"
#include "SqlConnection.h"
#include "VKError.h"

#include <QCoreApplication>
#include <QHash>
#include <QQueue>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <numeric>

namespace TechDB {

namespace {

QString translated(const char* english, const char* french) {
    return QCoreApplication::translate("TechDB::SampleStore", english, french);
}

[[noreturn]] void throwDamaged() {
    throw VKError(
        translated("The stored sample can't be read: its rows, columns and values don't fit together.",
                   "L'échantillon enregistré est illisible : lignes, colonnes et valeurs ne vont pas "
                   "ensemble."),
        {}, translated("Import the dataset again.", "Importez à nouveau l'ensemble de données."));
}

[[noreturn]] void throwUnusable(const SampleTable& table, const QString& reason) {
    throw VKError(translated("A table of %1 rows, %2 columns and %3 values can't be stored: %4.",
                             "Un tableau de %1 lignes, %2 colonnes et %3 valeurs ne peut pas être "
                             "enregistré : %4.")
                      .arg(table.rowNames.size())
                      .arg(table.columnNames.size())
                      .arg(table.cells.size())
                      .arg(reason),
                  {}, translated("Check the file that it came from.", "Vérifiez le fichier d'origine."));
}

[[noreturn]] void throwTooLarge(qint64 rows, qint64 columns) {
    throw VKError(translated("The sample would have %1 rows and %2 columns, which is too large.",
                             "L'échantillon aurait %1 lignes et %2 colonnes, ce qui est trop grand.")
                      .arg(rows)
                      .arg(columns),
                  {}, translated("Divide the data.", "Divisez les données."));
}

bool isFiniteOrText(const QVariant& cell) {
    return cell.type() != QVariant::Double || std::isfinite(cell.toDouble());
}

QVector<int> ascending(int count) {
    QVector<int> numbers(count);
    std::iota(numbers.begin(), numbers.end(), 0);
    return numbers;
}

/// The place in `stored` of each of `added`; names that find none are appended to it.
QVector<int> mergedInto(QStringList& stored, const QStringList& added) {
    QHash<QString, QQueue<int>> places;
    for (int place = 0; place < stored.size(); ++place) {
        places[stored.at(place)].enqueue(place);
    }
    QVector<int> merged;
    merged.reserve(added.size());
    for (const QString& name : added) {
        const auto found = places.find(name);
        if (found != places.end() && !found->isEmpty()) {
            merged.append(found->dequeue());
            continue;
        }
        merged.append(stored.size());
        stored.append(name);
    }
    return merged;
}

bool isSame(const TProperty& one, const TProperty& other) {
    return one.name() == other.name() && one.value() == other.value() && one.unit() == other.unit() &&
           one.comment() == other.comment();
}

QString selectRows() {
    return QStringLiteral("SELECT position, name FROM sample_rows WHERE sample_id = ? ORDER BY position");
}

} // namespace

void SampleStore::check(const SampleTable& table) {
    const qint64 rows = table.rowNames.size();
    const qint64 columns = table.columnNames.size();
    if (rows * columns > maximumCells) {
        throwTooLarge(rows, columns);
    }
    if (rows * columns != table.cells.size()) {
        throwUnusable(table, translated("they don't fit together", "ils ne vont pas ensemble"));
    }
    if (!std::all_of(table.cells.begin(), table.cells.end(), isFiniteOrText)) {
        throwUnusable(table, translated("one of them is no finite number", "l'une n'est pas un nombre fini"));
    }
}

void SampleStore::add(qint64 sample, const SampleTable& table) {
    addNames(QStringLiteral("sample_rows"), sample, 0, table.rowNames);
    addNames(QStringLiteral("sample_columns"), sample, 0, table.columnNames);
    addProperties(sample, 0, table.properties);
    addValues(sample, ascending(table.rowNames.size()), 0, table);
}

void SampleStore::addColumns(qint64 sample, const SampleTable& table) {
    QStringList rows = names(selectRows(), sample);
    const int formerRows = rows.size();
    const QVector<int> places = mergedInto(rows, table.rowNames);
    const int firstColumn = columnCount(sample);
    const qint64 columns = qint64{firstColumn} + table.columnNames.size();
    if (rows.size() * columns > maximumCells) {
        throwTooLarge(rows.size(), columns);
    }
    addNames(QStringLiteral("sample_rows"), sample, formerRows, rows.mid(formerRows));
    addNames(QStringLiteral("sample_columns"), sample, firstColumn, table.columnNames);
    const QList<TProperty> known = properties(sample);
    QList<TProperty> added;
    std::copy_if(table.properties.begin(), table.properties.end(), std::back_inserter(added),
                 [&known](const TProperty& property) {
                     return std::none_of(known.begin(), known.end(),
                                         [&property](const TProperty& one) { return isSame(one, property); });
                 });
    addProperties(sample, known.size(), added);
    addValues(sample, places, firstColumn, table);
}

void SampleStore::addNames(const QString& table, qint64 sample, int firstPosition, const QStringList& names) {
    BulkInsert rows(m_connection, table + QLatin1String(" (sample_id, position, name)"), 3);
    for (int i = 0; i < names.size(); ++i) {
        rows.add({sample, firstPosition + i, SqlConnection::text(names.at(i))});
    }
    rows.finish();
}

void SampleStore::addProperties(qint64 sample, int firstPosition, const QList<TProperty>& properties) {
    BulkInsert rows(m_connection,
                    QStringLiteral("sample_properties (sample_id, position, name, value, unit, comment)"), 6);
    for (int i = 0; i < properties.size(); ++i) {
        const TProperty& property = properties.at(i);
        rows.add({sample, firstPosition + i, SqlConnection::text(property.name()),
                  SqlConnection::text(property.value()), SqlConnection::text(property.unit()),
                  SqlConnection::text(property.comment())});
    }
    rows.finish();
}

void SampleStore::addValues(qint64 sample, const QVector<int>& rowPositions, int firstColumn,
                            const SampleTable& table) {
    static const QVariant noNumber(QVariant::Double);
    static const QVariant noText(QVariant::String);
    BulkInsert rows(
        m_connection,
        QStringLiteral("sample_values (sample_id, row_position, column_position, number_value, text_value)"),
        5);
    const int columns = table.columnNames.size();
    for (int place = 0; place < table.cells.size(); ++place) {
        const QVariant& cell = table.cells.at(place);
        if (!cell.isValid()) {
            continue;
        }
        const bool number = cell.type() == QVariant::Double;
        rows.add({sample, rowPositions.at(place / columns), firstColumn + place % columns,
                  number ? cell : noNumber, number ? noText : SqlConnection::text(cell.toString())});
    }
    rows.finish();
}

SampleTable SampleStore::table(qint64 sample) const {
    SampleTable table;
    table.rowNames = names(selectRows(), sample);
    table.columnNames = names(
        QStringLiteral("SELECT position, name FROM sample_columns WHERE sample_id = ? ORDER BY position"),
        sample);
    table.properties = properties(sample);
    readValues(sample, table);
    return table;
}

void SampleStore::readValues(qint64 sample, SampleTable& table) const {
    const int rows = table.rowNames.size();
    const int columns = table.columnNames.size();
    if (qint64{rows} * columns > maximumCells) {
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

QStringList SampleStore::names(const QString& statement, qint64 sample) const {
    QStringList list;
    m_connection.select(statement, {sample}, [&list](const QSqlQuery& row) {
        if (row.value(0).toLongLong() != list.size()) {
            throwDamaged();
        }
        list.append(row.value(1).toString());
    });
    return list;
}

QList<TProperty> SampleStore::properties(qint64 sample) const {
    QList<TProperty> list;
    m_connection.select(QStringLiteral("SELECT name, value, unit, comment FROM sample_properties"
                                       " WHERE sample_id = ? ORDER BY position"),
                        {sample}, [&list](const QSqlQuery& row) {
                            list.append(TProperty(row.value(0).toString(), row.value(1).toString(),
                                                  row.value(2).toString(), row.value(3).toString()));
                        });
    return list;
}

int SampleStore::columnCount(qint64 sample) const {
    qint64 count = 0;
    m_connection.select(
        QStringLiteral("SELECT coalesce(max(position) + 1, 0) FROM sample_columns WHERE sample_id = ?"),
        {sample}, [&count](const QSqlQuery& row) { count = row.value(0).toLongLong(); });
    if (count > maximumCells) {
        throwDamaged();
    }
    return static_cast<int>(count);
}

} // namespace TechDB

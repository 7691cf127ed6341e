#include "BulkInsert.h"

namespace TechDB {

namespace {

/// With six columns far below the 999 values that every engine takes.
constexpr int rowsAtOnce = 32;

} // namespace

BulkInsert::BulkInsert(SqlConnection& connection, const QString& target, int columns)
    : m_connection(connection), m_target(target), m_columns(columns) {
    m_values.reserve(rowsAtOnce * columns);
}

void BulkInsert::add(const SqlConnection::Values& row) {
    for (const QVariant& value : row) {
        m_values.append(value);
    }
    if (m_values.size() == rowsAtOnce * m_columns) {
        write(rowsAtOnce);
    }
}

void BulkInsert::finish() {
    // Halves instead of what is left, so that a handful of statements serves all numbers of rows.
    for (int rows = rowsAtOnce / 2; rows > 0; rows /= 2) {
        if (m_values.size() >= rows * m_columns) {
            write(rows);
        }
    }
}

void BulkInsert::write(int rows) {
    const QString row =
        QLatin1String("(?") + QStringLiteral(", ?").repeated(m_columns - 1) + QLatin1Char(')');
    const QString statement = QLatin1String("INSERT INTO ") + m_target + QLatin1String(" VALUES ") + row +
                              (QLatin1String(", ") + row).repeated(rows - 1);
    m_connection.execute(statement, m_values.mid(0, rows * m_columns));
    m_values.remove(0, rows * m_columns);
}

} // namespace TechDB

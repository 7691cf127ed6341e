#pragma once

#include "SqlConnection.h"

namespace TechDB {

/// Inserts many rows into a table, several with one statement: a statement a row takes three times as long.
class BulkInsert {
public:
    /// `target` names the table and its columns: "samples (dataset_id, name)". The connection outlives this.
    BulkInsert(SqlConnection& connection, const QString& target, int columns);

    /// A value for each column. Rows are written in their order, by and by.
    void add(const SqlConnection::Values& row);
    /// Writes the rows that are left.
    void finish();

private:
    void write(int rows);

    SqlConnection& m_connection;
    const QString m_target;
    const int m_columns;
    SqlConnection::Values m_values;
};

} // namespace TechDB

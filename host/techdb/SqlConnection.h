#pragma once

#include "DatabaseKind.h"
#include "SqlDialect.h"

#include <QHash>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QVariant>
#include <QVector>

#include <functional>
#include <memory>

namespace TechDB {

/// One open connection to a database. Every statement is prepared, values are bound, never written into its
/// text. For the thread that opened it. A failure is thrown as `SqlError`.
class SqlConnection {
public:
    using Values = QVector<QVariant>;
    using RowReader = std::function<void(const QSqlQuery& row)>;

    /// Opens an existing database and creates nothing.
    SqlConnection(DatabaseKind kind, const QString& place, std::unique_ptr<SqlDialect> dialect);
    ~SqlConnection();
    SqlConnection(const SqlConnection&) = delete;
    SqlConnection& operator=(const SqlConnection&) = delete;

    DatabaseKind kind() const { return m_kind; }
    const QString& place() const { return m_place; }
    const SqlDialect& dialect() const { return *m_dialect; }
    bool inTransaction() const { return m_openTransactions > 0; }

    /// Runs a statement once; it isn't kept. The words in braces of the dialect are replaced.
    void run(const QString& statement, const Values& values = {});
    /// Runs a statement that will come again and returns the number of rows that it changed.
    int execute(const QString& statement, const Values& values);
    /// The same for an INSERT into a table with a key of its own; returns the key.
    qint64 insert(const QString& statement, const Values& values);
    /// Hands each row to `reader`, which must not run the same statement again. No row is kept in memory.
    void select(const QString& statement, const Values& values, const RowReader& reader);

    /// A text for a column that must have one: a null string counts as an empty one.
    static QVariant text(const QString& value);

private:
    friend class SqlTransaction;

    QSqlQuery& prepared(const QString& statement);
    void start(QSqlQuery& query, const Values& values) const;
    [[noreturn]] void fail(const QSqlError& error) const;

    DatabaseKind m_kind;
    QString m_place;
    std::unique_ptr<SqlDialect> m_dialect;
    QString m_name;
    QSqlDatabase m_database;
    QHash<QString, QSqlQuery> m_statements;
    int m_openTransactions = 0;
    bool m_givenUp = false;
};

} // namespace TechDB

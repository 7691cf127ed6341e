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

/// One open connection to a database. Values are bound, never written into the text of a statement; the words
/// in braces of the dialect are replaced. For the thread that opened it. A failure is thrown as `SqlError`.
///
/// A connection that was cut is made again by the next statement outside a transaction. What a transaction
/// had written is lost with the connection, so that all of it fails.
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
    /// The place as messages and lists may show it.
    QString shown() const { return m_dialect->shown(m_place); }
    const SqlDialect& dialect() const { return *m_dialect; }
    bool inTransaction() const { return m_openTransactions > 0; }
    /// Whether the connection is known to be cut; some ways of breaking show only when it is used.
    bool isCut() const { return m_isCut || !m_database.isOpen(); }
    /// Makes a connection anew that was cut outside a transaction, as the next statement would.
    void reopenIfCut();

    /// Runs a statement once; it isn't kept. Without values it need not be one that can be prepared.
    void run(const QString& statement, const Values& values = {});
    /// Runs a statement that will come again and returns the number of rows that it changed.
    int execute(const QString& statement, const Values& values);
    /// The same for an INSERT into a table with a key of its own; returns the key.
    qint64 insert(const QString& statement, const Values& values);
    /// Hands each row to `reader`, which must not run the same statement again. No row is kept in memory.
    void select(const QString& statement, const Values& values, const RowReader& reader);

    /// Calls `heard` from the event loop after commits of other connections, if the dialect has a channel for
    /// them; also, before the statement at hand, when the connection was made anew, since commits may have
    /// gone unheard.
    void listen(const std::function<void()>& heard);

    /// A text for a column that must have one: a null string counts as an empty one.
    static QVariant text(const QString& value);

private:
    friend class SqlSnapshot;
    friend class SqlTransaction;

    void open();
    void close();
    void subscribe();
    void runOnce(const QString& statement, const Values& values);
    QSqlQuery query() const;
    QSqlQuery& prepared(const QString& statement);
    void start(QSqlQuery& query, const Values& values);
    [[noreturn]] void fail(const QSqlError& error);

    DatabaseKind m_kind;
    QString m_place;
    std::unique_ptr<SqlDialect> m_dialect;
    QString m_name;
    QSqlDatabase m_database;
    QHash<QString, QSqlQuery> m_statements;
    int m_openTransactions = 0;
    bool m_givenUp = false;
    bool m_isCut = false;
    std::function<void()> m_heard;
};

} // namespace TechDB

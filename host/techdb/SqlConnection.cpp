#include "SqlConnection.h"

#include "SqlError.h"

#include <QSqlError>
#include <QUuid>

#include <utility>

namespace TechDB {

namespace {

/// Ends a statement's reading, whatever ends its use: a statement left open would hold a read lock.
class Finished {
public:
    explicit Finished(QSqlQuery& query) : m_query(query) {}
    ~Finished() { m_query.finish(); }
    Finished(const Finished&) = delete;
    Finished& operator=(const Finished&) = delete;

private:
    QSqlQuery& m_query;
};

} // namespace

SqlConnection::SqlConnection(DatabaseKind kind, const QString& place, std::unique_ptr<SqlDialect> dialect)
    : m_kind(kind), m_place(place), m_dialect(std::move(dialect)),
      m_name(QStringLiteral("techdb-") + QUuid::createUuid().toString(QUuid::WithoutBraces)),
      m_database(QSqlDatabase::addDatabase(m_dialect->driver(), m_name)) {
    m_dialect->aim(m_database, m_place);
    try {
        if (!m_database.open()) {
            fail(m_database.lastError());
        }
        const QStringList statements = m_dialect->setUp();
        for (const QString& statement : statements) {
            run(statement);
        }
    } catch (...) {
        m_database = QSqlDatabase();
        QSqlDatabase::removeDatabase(m_name);
        throw;
    }
}

SqlConnection::~SqlConnection() {
    m_statements.clear();
    m_database.close();
    m_database = QSqlDatabase();
    QSqlDatabase::removeDatabase(m_name);
}

void SqlConnection::run(const QString& statement, const Values& values) {
    QSqlQuery query(m_database);
    query.setForwardOnly(true);
    if (!query.prepare(m_dialect->adapted(statement))) {
        fail(query.lastError());
    }
    start(query, values);
}

int SqlConnection::execute(const QString& statement, const Values& values) {
    QSqlQuery& query = prepared(statement);
    const Finished finished(query);
    start(query, values);
    return query.numRowsAffected();
}

qint64 SqlConnection::insert(const QString& statement, const Values& values) {
    QSqlQuery& query = prepared(statement);
    const Finished finished(query);
    start(query, values);
    return query.lastInsertId().toLongLong();
}

void SqlConnection::select(const QString& statement, const Values& values, const RowReader& reader) {
    QSqlQuery& query = prepared(statement);
    const Finished finished(query);
    start(query, values);
    while (query.next()) {
        reader(query);
    }
    // The end of the rows and a damaged page look alike to next().
    if (query.lastError().isValid()) {
        fail(query.lastError());
    }
}

QVariant SqlConnection::text(const QString& value) {
    return value.isNull() ? QString(QLatin1String("")) : value;
}

QSqlQuery& SqlConnection::prepared(const QString& statement) {
    const auto known = m_statements.find(statement);
    if (known != m_statements.end()) {
        return *known;
    }
    QSqlQuery query(m_database);
    query.setForwardOnly(true);
    if (!query.prepare(m_dialect->adapted(statement))) {
        fail(query.lastError());
    }
    return *m_statements.insert(statement, query);
}

void SqlConnection::start(QSqlQuery& query, const Values& values) const {
    for (int i = 0; i < values.size(); ++i) {
        query.bindValue(i, values.at(i));
    }
    if (!query.exec()) {
        fail(query.lastError());
    }
}

void SqlConnection::fail(const QSqlError& error) const {
    throw SqlError(m_dialect->failureOf(error), error, m_kind, m_place);
}

} // namespace TechDB

#include "SqlConnection.h"

#include "SqlError.h"

#include <QSqlDriver>
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
      m_name(QStringLiteral("techdb-") + QUuid::createUuid().toString(QUuid::WithoutBraces)) {
    try {
        open();
    } catch (...) {
        close();
        throw;
    }
}

SqlConnection::~SqlConnection() {
    close();
}

void SqlConnection::open() {
    m_database = QSqlDatabase::addDatabase(m_dialect->driver(), m_name);
    m_dialect->aim(m_database, m_place);
    if (!m_database.open()) {
        fail(m_database.lastError());
    }
    m_isCut = false;
    const QStringList statements = m_dialect->setUp();
    for (const QString& statement : statements) {
        runOnce(statement, {});
    }
    subscribe();
}

void SqlConnection::close() {
    m_database = QSqlDatabase();
    QSqlDatabase::removeDatabase(m_name);
    m_statements.clear(); // last: each would tell the other end, which may be gone
}

void SqlConnection::reopenIfCut() {
    if (!isCut()) {
        return;
    }
    m_isCut = true; // the driver only closes one that it finds cut while it listens
    if (inTransaction()) {
        fail(QSqlError());
    }
    close();
    try {
        open();
    } catch (...) {
        m_isCut = true;
        throw;
    }
    if (m_heard) {
        m_heard();
    }
}

void SqlConnection::listen(const std::function<void()>& heard) {
    m_heard = heard;
    subscribe();
}

void SqlConnection::subscribe() {
    const QString channel = m_dialect->channel();
    QSqlDriver* const driver = m_database.driver();
    if (!m_heard || channel.isEmpty() || driver->subscribedToNotifications().contains(channel)) {
        return;
    }
    if (!driver->subscribeToNotification(channel)) {
        fail(driver->lastError());
    }
    const auto signal =
        qOverload<const QString&, QSqlDriver::NotificationSource, const QVariant&>(&QSqlDriver::notification);
    QObject::connect(driver, signal, driver, [this](const QString&, QSqlDriver::NotificationSource source) {
        if (source == QSqlDriver::OtherSource) {
            m_heard();
        }
    });
}

QSqlQuery SqlConnection::query() const {
    QSqlQuery query(m_database);
    query.setForwardOnly(m_dialect->streamsRows());
    return query;
}

void SqlConnection::run(const QString& statement, const Values& values) {
    reopenIfCut();
    runOnce(statement, values);
}

void SqlConnection::runOnce(const QString& statement, const Values& values) {
    QSqlQuery once = query();
    const QString text = m_dialect->adapted(statement);
    if (values.isEmpty()) {
        if (!once.exec(text)) {
            fail(once.lastError());
        }
        return;
    }
    if (!once.prepare(text)) {
        fail(once.lastError());
    }
    start(once, values);
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
    reopenIfCut();
    const auto known = m_statements.find(statement);
    if (known != m_statements.end()) {
        return *known;
    }
    QSqlQuery fresh = query();
    if (!fresh.prepare(m_dialect->adapted(statement))) {
        fail(fresh.lastError());
    }
    return *m_statements.insert(statement, fresh);
}

void SqlConnection::start(QSqlQuery& query, const Values& values) {
    for (int i = 0; i < values.size(); ++i) {
        query.bindValue(i, values.at(i));
    }
    if (!query.exec()) {
        fail(query.lastError());
    }
}

void SqlConnection::fail(const QSqlError& error) {
    const SqlFailure failure = m_isCut && inTransaction() ? SqlFailure::Cut : m_dialect->failureOf(error);
    m_isCut = m_isCut || failure == SqlFailure::Cut;
    throw SqlError(failure, error, m_kind, shown());
}

} // namespace TechDB

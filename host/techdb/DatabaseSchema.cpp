#include "DatabaseSchema.h"

#include "SqlConnection.h"
#include "SqlError.h"

#include <QSqlError>
#include <QUuid>

#include <utility>

namespace TechDB {

namespace {

[[noreturn]] void failAsForeign(const SqlConnection& connection) {
    throw SqlError(SqlFailure::NotADatabase, QSqlError(), connection.kind(), connection.place());
}

} // namespace

DatabaseSchema::DatabaseSchema(DatabaseKind kind, QStringList creation, QVector<SchemaStep> migrations,
                               QStringList probes)
    : m_kind(kind), m_creation(std::move(creation)), m_migrations(std::move(migrations)),
      m_probes(std::move(probes)) {}

QString DatabaseSchema::identity() const {
    return m_kind == DatabaseKind::Project ? QStringLiteral("project") : QStringLiteral("catalogue");
}

void DatabaseSchema::create(SqlConnection& connection, const QString& id, const QString& instant) const {
    connection.run(QStringLiteral("CREATE TABLE %1 ("
                                  " only_row INTEGER PRIMARY KEY CHECK (only_row = 1),"
                                  " id TEXT NOT NULL,"
                                  " schema_version INTEGER NOT NULL,"
                                  " created TEXT NOT NULL)")
                       .arg(identity()));
    for (const QString& statement : m_creation) {
        connection.run(statement);
    }
    connection.run(
        QStringLiteral("INSERT INTO %1 (only_row, id, schema_version, created) VALUES (1, ?, ?, ?)")
            .arg(identity()),
        {id, version(), instant});
}

int DatabaseSchema::versionOf(SqlConnection& connection) const {
    QVariant found;
    try {
        connection.select(QStringLiteral("SELECT schema_version FROM %1 WHERE only_row = 1").arg(identity()),
                          {}, [&found](const QSqlQuery& row) { found = row.value(0); });
    } catch (const SqlError& error) {
        // A database of somebody else's has no such table; any other failure keeps its own words.
        if (error.failure() != SqlFailure::Other) {
            throw;
        }
        failAsForeign(connection);
    }
    const int stored = found.toInt();
    if (stored < 1) {
        failAsForeign(connection);
    }
    return stored;
}

QString DatabaseSchema::idOf(SqlConnection& connection) const {
    QString id;
    connection.select(QStringLiteral("SELECT id FROM %1 WHERE only_row = 1").arg(identity()), {},
                      [&id](const QSqlQuery& row) { id = row.value(0).toString(); });
    if (QUuid(id).isNull()) {
        failAsForeign(connection);
    }
    return id;
}

void DatabaseSchema::migrate(SqlConnection& connection, int from) const {
    for (int present = from; present < version(); ++present) {
        const SchemaStep& step = m_migrations.at(present - 1);
        for (const QString& statement : step.statements) {
            connection.run(statement);
        }
        if (step.rest) {
            step.rest(connection);
        }
    }
    connection.run(QStringLiteral("UPDATE %1 SET schema_version = ? WHERE only_row = 1").arg(identity()),
                   {version()});
}

void DatabaseSchema::probe(SqlConnection& connection) const {
    for (const QString& statement : m_probes) {
        connection.run(statement);
    }
}

} // namespace TechDB

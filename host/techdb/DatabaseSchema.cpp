#include "DatabaseSchema.h"

#include "SqlConnection.h"
#include "SqlError.h"
#include "SqlTransaction.h"

#include <QCoreApplication>
#include <QSqlError>
#include <QUuid>

#include <utility>

namespace TechDB {

namespace {

QString translated(const char* english, const char* french) {
    return QCoreApplication::translate("TechDB::DatabaseSchema", english, french);
}

[[noreturn]] void failAsForeign(const SqlConnection& connection) {
    throw SqlError(SqlFailure::NotADatabase, QSqlError(), connection.kind(), connection.shown());
}

[[noreturn]] void failAsNewer(const SqlConnection& connection, int found, int known) {
    throw VKError(translated("The %2 <b>%1</b> was saved by a newer version of this program.",
                             "Le %2 <b>%1</b> a été enregistré par une version plus récente de ce programme.")
                      .arg(connection.shown().toHtmlEscaped(), nameOf(connection.kind())),
                  translated("(Its format is %1, this version knows formats up to %2.)",
                             "(Son format est %1, cette version connaît les formats jusqu'à %2.)")
                      .arg(found)
                      .arg(known),
                  translated("Open it with that version.", "Ouvrez-le avec cette version."));
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

std::optional<int> DatabaseSchema::findVersion(SqlConnection& connection) const {
    std::optional<int> found;
    try {
        connection.select(QStringLiteral("SELECT schema_version FROM %1 WHERE only_row = 1").arg(identity()),
                          {}, [&found](const QSqlQuery& row) { found = row.value(0).toInt(); });
    } catch (const SqlError& error) {
        // A database of somebody else's has no such table; any other failure keeps its own words.
        if (error.failure() != SqlFailure::Other) {
            throw;
        }
    }
    return found;
}

int DatabaseSchema::versionOf(SqlConnection& connection) const {
    const int stored = findVersion(connection).value_or(0);
    if (stored < 1) {
        failAsForeign(connection);
    }
    return stored;
}

int DatabaseSchema::knownVersionOf(SqlConnection& connection) const {
    const int stored = versionOf(connection);
    if (stored > version()) {
        failAsNewer(connection, stored, version());
    }
    return stored;
}

QString DatabaseSchema::idOf(SqlConnection& connection) const {
    QString id = identityCell(connection, QStringLiteral("id"));
    if (QUuid(id).isNull()) {
        failAsForeign(connection);
    }
    return id;
}

QString DatabaseSchema::createdOf(SqlConnection& connection) const {
    return identityCell(connection, QStringLiteral("created"));
}

QString DatabaseSchema::identityCell(SqlConnection& connection, const QString& column) const {
    QString text;
    connection.select(QStringLiteral("SELECT %1 FROM %2 WHERE only_row = 1").arg(column, identity()), {},
                      [&text](const QSqlQuery& row) { text = row.value(0).toString(); });
    return text;
}

// Another window may have brought it forward while this one waited to write.
void DatabaseSchema::bringForward(SqlConnection& connection) const {
    SqlTransaction transaction(connection);
    const int stored = versionOf(connection);
    if (stored < version()) {
        migrate(connection, stored);
    }
    transaction.commit();
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

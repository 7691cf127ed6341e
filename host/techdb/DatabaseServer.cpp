#include "DatabaseServer.h"

#include "MessageLoggerInterface.h"
#include "PostgresDialect.h"
#include "SqlConnection.h"
#include "SqlTransaction.h"
#include "StoredInstant.h"
#include "VKError.h"

#include <QCoreApplication>
#include <QUuid>

namespace TechDB::DatabaseServer {

namespace {

QString translated(const char* english, const char* french) {
    return QCoreApplication::translate("TechDB::DatabaseServer", english, french);
}

/// Who may only read is told before a day's work waits for an import.
void warnReader(SqlConnection& connection) {
    bool mayWrite = false;
    connection.select(QStringLiteral("SELECT has_table_privilege('analyses', 'INSERT')"
                                     " AND has_table_privilege('datasets', 'INSERT')"
                                     " AND NOT pg_is_in_recovery()"),
                      {}, [&mayWrite](const QSqlQuery& row) { mayWrite = row.value(0).toBool(); });
    if (mayWrite) {
        return;
    }
    MessageLoggerInterface::Warning(
        translated(
            "You may read the %2 <b>%1</b>, but not change it: nothing can be imported, renamed or "
            "deleted. Ask who keeps the server for the right to write.",
            "Vous pouvez lire le %2 <b>%1</b>, mais pas le modifier : rien ne peut être importé, renommé "
            "ou supprimé. Demandez le droit d'écrire à qui gère le serveur.")
            .arg(connection.shown().toHtmlEscaped(), nameOf(connection.kind())));
}

} // namespace

std::unique_ptr<SqlConnection> connected(const QString& address, DatabaseKind kind) {
    return std::make_unique<SqlConnection>(kind, address, std::make_unique<PostgresDialect>());
}

std::unique_ptr<SqlConnection> create(const QString& address, const DatabaseSchema& schema) {
    std::unique_ptr<SqlConnection> connection = connected(address, schema.kind());
    if (schema.findVersion(*connection)) {
        throw VKError(translated("The database <b>%1</b> holds a %2 already.",
                                 "La base de données <b>%1</b> contient déjà un %2.")
                          .arg(connection->shown().toHtmlEscaped(), nameOf(schema.kind())),
                      {},
                      translated("Open it, or have another database made for the new one.",
                                 "Ouvrez-le, ou faites créer une autre base pour le nouveau."));
    }
    SqlTransaction transaction(*connection);
    schema.create(*connection, QUuid::createUuid().toString(QUuid::WithoutBraces), StoredInstant::now());
    transaction.commit();
    return connection;
}

std::unique_ptr<SqlConnection> open(const QString& address, const DatabaseSchema& schema) {
    std::unique_ptr<SqlConnection> connection = connected(address, schema.kind());
    if (schema.knownVersionOf(*connection) < schema.version()) {
        schema.bringForward(*connection);
    }
    schema.probe(*connection);
    warnReader(*connection);
    return connection;
}

} // namespace TechDB::DatabaseServer

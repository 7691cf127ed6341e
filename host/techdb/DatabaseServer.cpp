#include "DatabaseServer.h"

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
    return connection;
}

} // namespace TechDB::DatabaseServer

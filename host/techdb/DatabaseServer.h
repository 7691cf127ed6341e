#pragma once

#include "DatabaseSchema.h"

#include <memory>

namespace TechDB {

class SqlConnection;

/// A database, such as a project, on a PostgreSQL server: one of the server's databases, which exists already
/// and holds nothing else of ours. Places are addresses (`ServerAddress`). Failures are thrown as VKError.
namespace DatabaseServer {

/// A connection to whatever is there.
std::unique_ptr<SqlConnection> connected(const QString& address, DatabaseKind kind);

/// Makes the tables in one transaction. Refuses a database that holds such tables already.
std::unique_ptr<SqlConnection> create(const QString& address, const DatabaseSchema& schema);

/// Opens what was made so. One of an older version is brought to the present version in one transaction, and
/// no copy is made before: a server is backed up by who keeps it. One of a newer version is refused.
std::unique_ptr<SqlConnection> open(const QString& address, const DatabaseSchema& schema);

} // namespace DatabaseServer

} // namespace TechDB

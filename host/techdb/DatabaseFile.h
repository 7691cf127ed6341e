#pragma once

#include "DatabaseSchema.h"

#include <functional>
#include <memory>

namespace TechDB {

class SqlConnection;

/// A database, such as a project, as a file: making, opening and copying it. Failures are thrown as VKError,
/// and leave no half of a file behind.
namespace DatabaseFile {

/// Makes a new one. Refuses a path where something lies already.
std::unique_ptr<SqlConnection> create(const QString& path, const DatabaseSchema& schema);

/// Opens an existing one. One of an older version is copied to a file beside it first, and brought to
/// the present version in one transaction. Refused, and left as they are: a file of another kind, one of
/// a newer version, and one that can't be written.
std::unique_ptr<SqlConnection> open(const QString& path, const DatabaseSchema& schema);

/// Opens what lies under a path, or makes it if nothing does. What lies there is whole at any moment: of two
/// windows that make it at once, both get that of the first.
std::unique_ptr<SqlConnection> openOrCreate(const QString& path, const DatabaseSchema& schema);

/// Writes a whole, checked copy of an open database. It appears under its path only when it is complete, and
/// then replaces what lay there. Refuses the database itself, a file that another window has open, and a copy
/// while a transaction is open.
void copy(SqlConnection& connection, const QString& target);

/// Lets `fill` write a database into a file that is new or was left by an earlier call for the same target
/// that failed; then that file takes the place of what lies under `target`, refused as by `copy`.
void write(const QString& target, DatabaseKind kind, const std::function<void(SqlConnection&)>& fill);

} // namespace DatabaseFile

} // namespace TechDB

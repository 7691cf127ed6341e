#pragma once

#include "ProjectSchema.h"

#include <memory>

namespace TechDB {

class SqlConnection;

/// A project as a file: making, opening and copying it. Failures are thrown as VKError, and leave no half
/// of a file behind.
namespace ProjectFile {

/// Makes a new project. Refuses a path where something lies already.
std::unique_ptr<SqlConnection> create(const QString& path, const ProjectSchema& schema);

/// Opens an existing project. One of an older version is copied to a file beside it first, and brought to
/// the present version in one transaction. Refused, and left as they are: a file that is no project, one of
/// a newer version, and one that can't be written.
std::unique_ptr<SqlConnection> open(const QString& path, const ProjectSchema& schema);

/// Writes a whole, checked copy of an open project. It appears under its path only when it is complete, and
/// then replaces what lay there. Refuses the project itself, a file that another window has open, and a copy
/// while a transaction is open.
void copy(SqlConnection& connection, const QString& target);

} // namespace ProjectFile

} // namespace TechDB

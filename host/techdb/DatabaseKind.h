#pragma once

#include <QString>

namespace TechDB {

/// What a database file is for.
enum class DatabaseKind { Project, Catalogue };

/// What the user calls it, in the middle of a sentence.
QString nameOf(DatabaseKind kind);

} // namespace TechDB

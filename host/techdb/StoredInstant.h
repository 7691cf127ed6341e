#pragma once

#include <QDateTime>
#include <QVariant>

namespace TechDB::StoredInstant {

/// The present instant as a column holds it: ISO 8601 in UTC, to the millisecond.
QString now();

/// The instant in a column, in UTC; invalid if it holds none.
QDateTime read(const QVariant& column);

} // namespace TechDB::StoredInstant

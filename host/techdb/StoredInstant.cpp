#include "StoredInstant.h"

namespace TechDB::StoredInstant {

QString now() {
    return QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs);
}

QDateTime read(const QVariant& column) {
    return QDateTime::fromString(column.toString(), Qt::ISODateWithMs).toUTC();
}

} // namespace TechDB::StoredInstant

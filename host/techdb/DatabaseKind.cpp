#include "DatabaseKind.h"

#include <QCoreApplication>

namespace TechDB {

// Sentences put an article before these: in French all of them are masculine.
QString nameOf(DatabaseKind kind) {
    switch (kind) {
    case DatabaseKind::Project:
        break;
    case DatabaseKind::Catalogue:
        return QCoreApplication::translate("TechDB::DatabaseKind", "catalogue", "catalogue");
    }
    return QCoreApplication::translate("TechDB::DatabaseKind", "project", "projet");
}

} // namespace TechDB

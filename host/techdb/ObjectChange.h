#pragma once

#include "VKObjectType.h"

#include <QMetaType>
#include <QVector>
#include <QtGlobal>

namespace TechDB {

/// One change of what a project holds. For a dataset, a change of its samples counts as a change of it.
struct ObjectChange {
    enum class Kind { Added, Changed, Renamed, Removed };

    Kind kind;
    VKObjectType type;
    qint64 key;
};

using ObjectChanges = QVector<ObjectChange>;

} // namespace TechDB

Q_DECLARE_TYPEINFO(TechDB::ObjectChange, Q_PRIMITIVE_TYPE);
Q_DECLARE_METATYPE(TechDB::ObjectChange)

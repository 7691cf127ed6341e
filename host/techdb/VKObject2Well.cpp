#include "VKObject2Well.h"

VKObject2Well::VKObject2Well(TechDB::TDatabase* db, qint64 key, const QString& name)
    : VKObject2(db, key, name) {}

VKObject2Well::~VKObject2Well() = default;

VKObjectType VKObject2Well::type() const {
    return VKObjectType::Well;
}

#include "VKObject2Signal.h"

// NOLINTNEXTLINE(misc-no-recursion): its base makes signals only for curves that are stored
VKObject2Signal::VKObject2Signal(TechDB::TDatabase* db, qint64 key, const QString& name)
    : VKObject2Analysis(db, key, name, Curve::Missing) {}

VKObject2Signal::~VKObject2Signal() = default;

VKObjectType VKObject2Signal::type() const {
    return VKObjectType::Signal;
}

const VKObject2Signal* VKObject2Signal::TIC() const {
    return this;
}

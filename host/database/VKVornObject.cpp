#include "VKVornObject.h"

VKVornObject::VKVornObject(VKObjectType type, qint64 key, const QString& name)
    : VKObject2(nullptr, key, name), m_type(type) {}

VKVornObject::~VKVornObject() = default;

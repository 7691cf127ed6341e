#include "VKObject2.h"

VKObject2::VKObject2(TechDB::TDatabase* db, qint64 key, const QString& name)
    : m_db(db), m_key(key), m_name(name) {}

VKObject2::~VKObject2() = default;

QString VKObject2::displayName() const {
    return m_name;
}

void VKObject2::setName(const QString& name) {
    m_name = name;
}

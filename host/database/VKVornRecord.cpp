#include "VKVornRecord.h"

VKVornRecord::VKVornRecord(const QString& key, const QString& id) : m_key(key), m_id(id) {}

VKVornRecord::~VKVornRecord() = default;

QString VKVornRecord::recordKey() const {
    return m_key;
}

QString VKVornRecord::recordId() const {
    return m_id;
}

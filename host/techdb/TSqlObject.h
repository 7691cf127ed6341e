#pragma once

#include "TDatabaseObject.h"

#include <QtGlobal>

namespace TechDB {

/// What is stored as a row.
class TSqlObject : public TDatabaseObject {
public:
    bool isStored() const override { return m_key > 0; }

    /// Of its row; 0 as long as there is none.
    qint64 key() const { return m_key; }
    void setKey(qint64 key) { m_key = key; }

private:
    qint64 m_key = 0;
};

} // namespace TechDB

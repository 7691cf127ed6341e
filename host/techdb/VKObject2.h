#pragma once

#include "VKObjectType.h"

#include <QString>
#include <QtGlobal>

namespace TechDB {
class ObjectPool;
class TDatabase;
} // namespace TechDB

/// A stored object, known by its database and its key. It belongs to its database and lives until that is
/// closed, even if what it stands for is removed before: a module may still hold it. It holds a name and
/// no data.
class VKObject2 {
public:
    virtual ~VKObject2();
    VKObject2(const VKObject2&) = delete;
    VKObject2& operator=(const VKObject2&) = delete;

    virtual VKObjectType type() const = 0;
    /// What the user sees.
    virtual QString displayName() const;

    /// Null for an object that stands in no database.
    TechDB::TDatabase* db() const { return m_db; }
    /// Unique among the objects of its kind, and never given to another one, not even after a removal. An
    /// analysis and its signal have one key.
    qint64 key() const { return m_key; }
    /// The unique name.
    const QString& name() const { return m_name; }

protected:
    VKObject2(TechDB::TDatabase* db, qint64 key, const QString& name);

    virtual void setName(const QString& name);

private:
    friend class TechDB::ObjectPool;

    TechDB::TDatabase* m_db;
    qint64 m_key;
    QString m_name;
};

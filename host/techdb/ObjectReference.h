#pragma once

#include <QByteArray>
#include <QUuid>
#include <QVector>

namespace TechDB {

/// A stored object as a drag names it. The type is the number of a VKObjectType, unchecked.
struct ObjectReference {
    QUuid project;
    qint32 type = 0;
    qint64 key = 0;
};

/// References as bytes: a mark of eight letters, then 28 bytes for each: project, type and key, the highest
/// byte first. At most a million.
namespace ObjectReferences {

constexpr int maximumCount = 1'000'000;

/// In their order.
QByteArray encoded(const QVector<ObjectReference>& references);

/// Empty if the bytes are anything else than that.
QVector<ObjectReference> decoded(const QByteArray& bytes);

} // namespace ObjectReferences

} // namespace TechDB

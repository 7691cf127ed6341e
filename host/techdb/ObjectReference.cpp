#include "ObjectReference.h"

#include <QtEndian>

namespace TechDB::ObjectReferences {

namespace {

constexpr int uuidSize = 16;
constexpr qsizetype entrySize = uuidSize + 4 + 8;

QByteArray mark() {
    return QByteArrayLiteral("TAVRELO1");
}

ObjectReference read(const char* entry) {
    ObjectReference reference;
    reference.project = QUuid::fromRfc4122(QByteArray(entry, uuidSize));
    reference.type = qFromBigEndian<qint32>(entry + uuidSize);
    reference.key = qFromBigEndian<qint64>(entry + uuidSize + 4);
    return reference;
}

} // namespace

QByteArray encoded(const QVector<ObjectReference>& references) {
    QByteArray bytes = mark();
    for (const ObjectReference& reference : references.mid(0, maximumCount)) {
        char numbers[entrySize - uuidSize];
        qToBigEndian<qint32>(reference.type, numbers);
        qToBigEndian<qint64>(reference.key, numbers + 4);
        bytes.append(reference.project.toRfc4122()).append(numbers, sizeof numbers);
    }
    return bytes;
}

QVector<ObjectReference> decoded(const QByteArray& bytes) {
    QVector<ObjectReference> references;
    const auto count = static_cast<int>((bytes.size() - mark().size()) / entrySize);
    if (!bytes.startsWith(mark()) || bytes.size() != mark().size() + count * entrySize ||
        count > maximumCount) {
        return references;
    }
    references.reserve(count);
    for (int i = 0; i < count; ++i) {
        references.append(read(bytes.constData() + mark().size() + i * entrySize));
    }
    return references;
}

} // namespace TechDB::ObjectReferences

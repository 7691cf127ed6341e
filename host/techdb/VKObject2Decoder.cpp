#include "VKObject2Decoder.h"

#include "DatabaseRegistry.h"
#include "ObjectReference.h"
#include "TDatabase.h"
#include "VKError.h"
#include "VKObject2Signal.h"
#include "VKObject2Well.h"

#include <QMimeData>

#include <algorithm>

namespace {

TechDB::TDatabase* databaseOf(const TechDB::ObjectReference& reference) {
    return TechDB::DatabaseRegistry::find(reference.project.toString(QUuid::WithoutBraces));
}

const VKObject2* found(const TechDB::ObjectReference& reference) {
    const TechDB::TDatabase* const database = databaseOf(reference);
    if (database == nullptr) {
        return nullptr;
    }
    switch (static_cast<VKObjectType>(reference.type)) {
    case VKObjectType::Analysis:
        return database->analysisByKey(reference.key);
    case VKObjectType::Signal: {
        const VKObject2Analysis* const analysis = database->analysisByKey(reference.key);
        return analysis != nullptr ? analysis->TIC() : nullptr;
    }
    case VKObjectType::Well:
        return database->wellByKey(reference.key);
    }
    return nullptr;
}

QVector<TechDB::ObjectReference> referencesIn(const QMimeData* data) {
    return data != nullptr
               ? TechDB::ObjectReferences::decoded(data->data(QLatin1String(VKObject2Decoder::mimeType())))
               : QVector<TechDB::ObjectReference>();
}

} // namespace

const char* VKObject2Decoder::mimeType() {
    return "application/x-tavrel-objects";
}

QMimeData* VKObject2Decoder::encode(const QList<const VKObject2*>& objects) {
    QVector<TechDB::ObjectReference> references;
    for (const VKObject2* object : objects) {
        if (object != nullptr && object->db() != nullptr) {
            references.append(
                {QUuid(object->db()->projectId()), static_cast<qint32>(object->type()), object->key()});
        }
    }
    auto* data = new QMimeData;
    data->setData(QLatin1String(mimeType()), TechDB::ObjectReferences::encoded(references));
    return data;
}

bool VKObject2Decoder::canDecode(const QMimeData* data) {
    const QVector<TechDB::ObjectReference> references = referencesIn(data);
    return std::any_of(references.begin(), references.end(), [](const TechDB::ObjectReference& reference) {
        return databaseOf(reference) != nullptr;
    });
}

QList<const VKObject2*> VKObject2Decoder::decodeObject(const QMimeData* data) {
    QList<const VKObject2*> objects;
    try {
        for (const TechDB::ObjectReference& reference : referencesIn(data)) {
            if (const VKObject2* const object = found(reference)) {
                objects.append(object);
            }
        }
    } catch (const VKError& error) {
        VKError::dispatchError(error);
        return {};
    }
    return objects;
}

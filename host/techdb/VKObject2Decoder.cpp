#include "VKObject2Decoder.h"

#include "DatabaseRegistry.h"
#include "ObjectReference.h"
#include "TDatabase.h"
#include "VKError.h"
#include "VKObject2Signal.h"
#include "VKObject2Well.h"

#include <QMimeData>

#include <algorithm>
#include <iterator>

namespace {

TechDB::TDatabase* databaseOf(const TechDB::ObjectReference& reference) {
    return TechDB::DatabaseRegistry::find(reference.project.toString(QUuid::WithoutBraces));
}

bool isAnalysis(const TechDB::ObjectReference& reference) {
    return reference.type == static_cast<qint32>(VKObjectType::Analysis) ||
           reference.type == static_cast<qint32>(VKObjectType::Signal);
}

/// The objects of one database, null for one that isn't there.
QVector<const VKObject2*> found(TechDB::TDatabase& database,
                                const QVector<TechDB::ObjectReference>& references) {
    QVector<qint64> keys;
    for (const TechDB::ObjectReference& reference : references) {
        keys.append(isAnalysis(reference) ? reference.key : 0);
    }
    const QVector<const VKObject2Analysis*> analyses = database.analysesByKeys(keys);
    QVector<const VKObject2*> objects;
    for (int i = 0; i < references.size(); ++i) {
        switch (static_cast<VKObjectType>(references[i].type)) {
        case VKObjectType::Analysis:
            objects.append(analyses[i]);
            break;
        case VKObjectType::Signal:
            objects.append(analyses[i] == nullptr ? nullptr : analyses[i]->TIC());
            break;
        case VKObjectType::Well:
            objects.append(database.wellByKey(references[i].key));
            break;
        case VKObjectType::Compound:
        case VKObjectType::Eic:
        case VKObjectType::Pair:
        case VKObjectType::Parameter:
            break;
        }
    }
    return objects;
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
        const QVector<TechDB::ObjectReference> references = referencesIn(data);
        for (int first = 0; first < references.size();) {
            TechDB::TDatabase* const database = databaseOf(references[first]);
            int end = first + 1;
            while (end < references.size() && references[end].project == references[first].project) {
                ++end;
            }
            if (database != nullptr) {
                const auto run = found(*database, references.mid(first, end - first));
                std::copy_if(run.begin(), run.end(), std::back_inserter(objects),
                             [](const VKObject2* object) { return object != nullptr; });
            }
            first = end;
        }
    } catch (const VKError& error) {
        VKError::dispatchError(error);
        return {};
    }
    return objects;
}

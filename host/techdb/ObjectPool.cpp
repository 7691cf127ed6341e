#include "ObjectPool.h"

#include "VKObject2Signal.h"

#include <utility>

namespace TechDB {

namespace {

template <typename Objects>
std::unique_ptr<VKObject2> takenFrom(Objects& objects, qint64 key) {
    const auto found = objects.find(key);
    if (found == objects.end()) {
        return nullptr;
    }
    std::unique_ptr<VKObject2> object = std::move(found->second);
    objects.erase(found);
    return object;
}

template <typename Objects>
VKObject2* foundIn(const Objects& objects, qint64 key) {
    const auto found = objects.find(key);
    return found == objects.end() ? nullptr : found->second.get();
}

} // namespace

ObjectPool::~ObjectPool() = default;

const VKObject2Analysis* ObjectPool::analysis(const AnalysisInfo& info) {
    std::unique_ptr<VKObject2Analysis>& object = m_analyses[info.key];
    if (!object) {
        const auto curve =
            info.pointCount > 0 ? VKObject2Analysis::Curve::Stored : VKObject2Analysis::Curve::Missing;
        object = std::make_unique<VKObject2Analysis>(m_db, info.key, info.name, curve);
    }
    static_cast<VKObject2*>(object.get())->setName(info.name);
    return object.get();
}

const VKObject2Well* ObjectPool::well(const DatasetInfo& info) {
    std::unique_ptr<VKObject2Well>& object = m_wells[info.key];
    if (!object) {
        object = std::make_unique<VKObject2Well>(m_db, info.key, info.name);
    }
    static_cast<VKObject2*>(object.get())->setName(info.name);
    return object.get();
}

void ObjectPool::rename(VKObjectType type, qint64 key, const QString& name) {
    VKObject2* const object = type == VKObjectType::Well ? foundIn(m_wells, key) : foundIn(m_analyses, key);
    if (object != nullptr) {
        object->setName(name);
    }
}

void ObjectPool::retire(VKObjectType type, qint64 key) {
    std::unique_ptr<VKObject2> object =
        type == VKObjectType::Well ? takenFrom(m_wells, key) : takenFrom(m_analyses, key);
    if (object) {
        m_retired.push_back(std::move(object));
    }
}

} // namespace TechDB

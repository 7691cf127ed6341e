#pragma once

#include "StoredObject.h"
#include "VKObject2Analysis.h"
#include "VKObject2Well.h"

#include <memory>
#include <unordered_map>
#include <vector>

namespace TechDB {

/// The objects of one open database, made when they are first asked for and kept until it is closed: one for
/// each analysis and dataset, under the name that was last read.
class ObjectPool {
public:
    explicit ObjectPool(TDatabase* db) : m_db(db) {}
    ~ObjectPool();
    ObjectPool(const ObjectPool&) = delete;
    ObjectPool& operator=(const ObjectPool&) = delete;

    const VKObject2Analysis* analysis(const AnalysisInfo& info);
    const VKObject2Well* well(const DatasetInfo& info);

    /// Gives an object its new name, if there is such an object.
    void rename(VKObjectType type, qint64 key, const QString& name);
    /// Lets an object be, for its key may come again: that of a row whose storing was rolled back.
    void retire(VKObjectType type, qint64 key);

private:
    template <typename Object>
    using Objects = std::unordered_map<qint64, std::unique_ptr<Object>>;

    TDatabase* m_db;
    Objects<VKObject2Analysis> m_analyses;
    Objects<VKObject2Well> m_wells;
    std::vector<std::unique_ptr<VKObject2>> m_retired;
};

} // namespace TechDB

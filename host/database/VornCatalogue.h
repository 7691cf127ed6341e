#pragma once

#include "CatalogueStore.h"
#include "VKVornObject.h"
#include "VKVornRecord.h"

#include <QString>

#include <map>
#include <memory>
#include <utility>

namespace TechDB {
class SqlConnection;
}

/// The file of the catalogue, opened or made when it is first asked for, and all that was answered out of it.
/// Failures are thrown as VKError.
class VornCatalogue {
public:
    VornCatalogue();
    ~VornCatalogue();
    VornCatalogue(const VornCatalogue&) = delete;
    VornCatalogue& operator=(const VornCatalogue&) = delete;

    /// The file, which need not exist; empty for the application's own folder. Closes what is open.
    void setPlace(const QString& file);
    QString place() const;
    /// Ends all objects and records.
    void close();

    TechDB::CatalogueStore store(TechDB::CatalogueStore::Scope scope);

    /// One for each row.
    VKVornObject* object(VKObjectType type, const TechDB::CatalogueStore::Entry& entry);
    VKVornRecord* record(VKObjectType type, const TechDB::CatalogueStore::Entry& entry);

private:
    using Row = std::pair<VKObjectType, qint64>;

    QString m_place;
    std::unique_ptr<TechDB::SqlConnection> m_connection;
    std::map<Row, std::unique_ptr<VKVornObject>> m_objects;
    std::map<Row, std::unique_ptr<VKVornRecord>> m_records;
};

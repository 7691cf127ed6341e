#include "VornCatalogue.h"

#include "CatalogueSchema.h"
#include "DatabaseFile.h"
#include "SqlConnection.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

using TechDB::CatalogueStore;

VornCatalogue::VornCatalogue() = default;

VornCatalogue::~VornCatalogue() = default;

void VornCatalogue::setPlace(const QString& file) {
    close();
    m_place = file;
}

QString VornCatalogue::place() const {
    if (!m_place.isEmpty()) {
        return m_place;
    }
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) +
           QStringLiteral("/parameters.vorncatalogue");
}

void VornCatalogue::close() {
    m_objects.clear();
    m_records.clear();
    m_connection.reset();
}

CatalogueStore VornCatalogue::store(CatalogueStore::Scope scope) {
    if (!m_connection) {
        const QString file = place();
        QDir().mkpath(QFileInfo(file).absolutePath()); // if it fails, the opening tells
        m_connection = TechDB::DatabaseFile::openOrCreate(file, TechDB::CatalogueSchema::current());
    }
    return {*m_connection, scope};
}

VKVornObject* VornCatalogue::object(VKObjectType type, const CatalogueStore::Entry& entry) {
    std::unique_ptr<VKVornObject>& object = m_objects[{type, entry.key}];
    if (!object) {
        object = std::make_unique<VKVornObject>(type, entry.key, entry.name);
    }
    return object.get();
}

VKVornRecord* VornCatalogue::record(VKObjectType type, const CatalogueStore::Entry& entry) {
    std::unique_ptr<VKVornRecord>& record = m_records[{type, entry.key}];
    if (!record) {
        const QString key = QString::number(entry.key);
        record = std::make_unique<VKVornRecord>(key, type == VKObjectType::Eic ? entry.name : key);
    }
    return record.get();
}

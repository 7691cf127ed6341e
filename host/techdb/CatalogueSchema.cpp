#include "CatalogueSchema.h"

namespace TechDB {

namespace {

// What is not published is a draft. A value that nobody gave is NULL.
QStringList firstVersion() {
    return {
        QStringLiteral("CREATE TABLE compounds ("
                       " id {identity},"
                       " name TEXT NOT NULL UNIQUE,"
                       " number_value {double},"
                       " created TEXT NOT NULL,"
                       " published INTEGER NOT NULL DEFAULT 0 CHECK (published IN (0, 1)))"),
        QStringLiteral("CREATE TABLE compound_properties ("
                       " compound_id BIGINT NOT NULL REFERENCES compounds (id) ON DELETE CASCADE,"
                       " position INTEGER NOT NULL,"
                       " name TEXT NOT NULL,"
                       " value TEXT NOT NULL,"
                       " PRIMARY KEY (compound_id, position)) {clustered}"),
        QStringLiteral("CREATE TABLE eics ("
                       " id {identity},"
                       " name TEXT NOT NULL UNIQUE,"
                       " number_value {double},"
                       " created TEXT NOT NULL,"
                       " published INTEGER NOT NULL DEFAULT 0 CHECK (published IN (0, 1)))"),
        QStringLiteral("CREATE TABLE pairs ("
                       " id {identity},"
                       " compound_id BIGINT NOT NULL REFERENCES compounds (id),"
                       " eic_id BIGINT NOT NULL REFERENCES eics (id),"
                       " number_value {double},"
                       " created TEXT NOT NULL,"
                       " published INTEGER NOT NULL DEFAULT 0 CHECK (published IN (0, 1)),"
                       " UNIQUE (compound_id, eic_id))"),
        QStringLiteral("CREATE TABLE parameters ("
                       " id {identity},"
                       " name TEXT NOT NULL UNIQUE,"
                       " master_name TEXT NOT NULL,"
                       " compute_formula TEXT NOT NULL,"
                       " process_type TEXT NOT NULL,"
                       " display_order INTEGER NOT NULL,"
                       " analysis_type TEXT NOT NULL,"
                       " study_type TEXT NOT NULL,"
                       " eic_list TEXT NOT NULL,"
                       " family_name TEXT NOT NULL,"
                       " comment TEXT NOT NULL,"
                       " literature_reference TEXT NOT NULL,"
                       " created TEXT NOT NULL,"
                       " published INTEGER NOT NULL DEFAULT 0 CHECK (published IN (0, 1)))"),
        QStringLiteral("CREATE INDEX parameters_by_master_name ON parameters (master_name)"),
    };
}

QStringList probes() {
    return {
        QStringLiteral("SELECT id, name, number_value, created, published FROM compounds LIMIT 0"),
        QStringLiteral("SELECT compound_id, position, name, value FROM compound_properties LIMIT 0"),
        QStringLiteral("SELECT id, name, number_value, created, published FROM eics LIMIT 0"),
        QStringLiteral("SELECT id, compound_id, eic_id, number_value, created, published FROM pairs LIMIT 0"),
        QStringLiteral("SELECT id, name, master_name, compute_formula, process_type, display_order,"
                       " analysis_type, study_type, eic_list, family_name, comment, literature_reference,"
                       " created, published FROM parameters LIMIT 0"),
    };
}

} // namespace

CatalogueSchema::CatalogueSchema(const QStringList& creation, const QVector<SchemaStep>& migrations)
    : DatabaseSchema(DatabaseKind::Catalogue, creation, migrations, probes()) {}

const CatalogueSchema& CatalogueSchema::current() {
    static const CatalogueSchema schema(firstVersion(), {});
    return schema;
}

} // namespace TechDB

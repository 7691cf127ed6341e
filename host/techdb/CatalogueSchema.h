#pragma once

#include "DatabaseSchema.h"

namespace TechDB {

/// The tables of the catalogue of parameters. The schema in use is `current()`.
class CatalogueSchema : public DatabaseSchema {
public:
    CatalogueSchema(const QStringList& creation, const QVector<SchemaStep>& migrations);

    static const CatalogueSchema& current();
};

} // namespace TechDB

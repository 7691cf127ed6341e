#pragma once

#include "DatabaseSchema.h"

namespace TechDB {

/// The tables of a project. The schema in use is `current()`.
class ProjectSchema : public DatabaseSchema {
public:
    ProjectSchema(const QStringList& creation, const QVector<SchemaStep>& migrations);

    static const ProjectSchema& current();
};

} // namespace TechDB

#pragma once

#include <QStringList>
#include <QVector>

namespace TechDB {

class SqlConnection;

/// The tables of a project and how they come about: all at once in a new project, or from an older version
/// step by step. A plain value; the schema in use is `current()`.
class ProjectSchema {
public:
    /// `migrations` holds, at place i, the statements that lead from version i + 1 to i + 2; there is one
    /// fewer than versions.
    ProjectSchema(QStringList creation, QVector<QStringList> migrations);

    static const ProjectSchema& current();

    int version() const { return m_migrations.size() + 1; }

    /// Makes the tables in an empty database and gives it its identity.
    void create(SqlConnection& connection, const QString& projectId, const QString& instant) const;

    /// The version that a database says it has. Throws VKError if it isn't a project.
    static int versionOf(SqlConnection& connection);
    static QString projectIdOf(SqlConnection& connection);

    /// Leads a database from the older version given to this one. To be called within a transaction.
    void migrate(SqlConnection& connection, int from) const;

    /// Throws if a table or a column of the current schema is not there.
    static void probe(SqlConnection& connection);

private:
    QStringList m_creation;
    QVector<QStringList> m_migrations;
};

} // namespace TechDB

#pragma once

#include "DatabaseKind.h"
#include "SchemaStep.h"

#include <QStringList>
#include <QVector>

#include <optional>

namespace TechDB {

class SqlConnection;

/// The tables of a database and how they come about: all at once in a new file, or from an older version step
/// by step. One more table, named after the kind of database, says in a single row which version a file has.
/// A plain value.
class DatabaseSchema {
public:
    /// `migrations` holds, at place i, the step that leads from version i + 1 to i + 2; there is one fewer
    /// than versions. `probes` are statements that fail if a table or a column is not there.
    DatabaseSchema(DatabaseKind kind, QStringList creation, QVector<SchemaStep> migrations,
                   QStringList probes);

    DatabaseKind kind() const { return m_kind; }
    int version() const { return m_migrations.size() + 1; }

    /// Makes the tables in an empty database and gives it its identity.
    void create(SqlConnection& connection, const QString& id, const QString& instant) const;

    /// The number that stands where a database says its version; none if that place is not there.
    std::optional<int> findVersion(SqlConnection& connection) const;
    /// The version that a database says it has. Throws VKError if it isn't one of this kind.
    int versionOf(SqlConnection& connection) const;
    /// The same; also throws for a version that is newer than this one.
    int knownVersionOf(SqlConnection& connection) const;
    /// The identity (a UUID) that a database was created with.
    QString idOf(SqlConnection& connection) const;
    /// When it was created, as it is stored.
    QString createdOf(SqlConnection& connection) const;

    /// Leads a database from whatever older version it has to this one, in one transaction.
    void bringForward(SqlConnection& connection) const;

    /// Throws if a table or a column is not there.
    void probe(SqlConnection& connection) const;

private:
    QString identity() const;
    QString identityCell(SqlConnection& connection, const QString& column) const;
    void migrate(SqlConnection& connection, int from) const;

    DatabaseKind m_kind;
    QStringList m_creation;
    QVector<SchemaStep> m_migrations;
    QStringList m_probes;
};

} // namespace TechDB

#pragma once

#include <QString>
#include <QStringList>

namespace TechDB {

class SqlConnection;

/// Names of analyses that were given out and are not in use yet, in a table of the database itself, so that
/// no two windows are given the same one. Each belongs to a session, the life of one window's database.
/// Writing takes a transaction of the caller's. Failures are thrown as VKError.
class NameReservations {
public:
    explicit NameReservations(SqlConnection& connection) : m_connection(connection) {}

    /// Makes the table where it isn't there yet.
    void prepare();

    bool contains(const QString& name) const;
    void add(const QString& name, const QString& session);
    void remove(const QString& name);

    /// Those that hold a name.
    QStringList sessions() const;
    void removeSession(const QString& session);

private:
    SqlConnection& m_connection;
};

} // namespace TechDB

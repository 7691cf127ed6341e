#include "NameReservations.h"

#include "SqlConnection.h"

namespace TechDB {

void NameReservations::prepare() {
    m_connection.run(QStringLiteral("CREATE TABLE IF NOT EXISTS reserved_names ("
                                    " name TEXT PRIMARY KEY,"
                                    " session TEXT NOT NULL) {clustered}"));
}

bool NameReservations::contains(const QString& name) const {
    bool found = false;
    m_connection.select(QStringLiteral("SELECT 1 FROM reserved_names WHERE name = ?"), {name},
                        [&found](const QSqlQuery&) { found = true; });
    return found;
}

void NameReservations::add(const QString& name, const QString& session) {
    m_connection.execute(QStringLiteral("INSERT INTO reserved_names (name, session) VALUES (?, ?)"),
                         {name, session});
}

void NameReservations::remove(const QString& name) {
    m_connection.execute(QStringLiteral("DELETE FROM reserved_names WHERE name = ?"), {name});
}

QStringList NameReservations::sessions() const {
    QStringList list;
    m_connection.select(QStringLiteral("SELECT DISTINCT session FROM reserved_names"), {},
                        [&list](const QSqlQuery& row) { list.append(row.value(0).toString()); });
    return list;
}

void NameReservations::removeSession(const QString& session) {
    m_connection.execute(QStringLiteral("DELETE FROM reserved_names WHERE session = ?"), {session});
}

} // namespace TechDB

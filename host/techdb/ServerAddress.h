#pragma once

#include <QCoreApplication>
#include <QList>
#include <QPair>
#include <QString>
#include <QUrl>

class QSqlDatabase;

namespace TechDB {

/// A project on a PostgreSQL server, written as
/// `postgresql://[user[:password]@][host][:port]/database[?option=value&…]`.
///
/// Options are those of the server's client library: `sslmode`, `sslrootcert`, `service`, `passfile`,
/// `connect_timeout` and so on. What is left out comes from its environment, its service file and its
/// password file. A password is used for the connection and shown and kept nowhere.
class ServerAddress {
    Q_DECLARE_TR_FUNCTIONS(TechDB::ServerAddress)

public:
    /// Whether a place is meant as an address, be it a good one or not.
    static bool isAddress(const QString& place);

    /// Throws VKError for what is no address.
    explicit ServerAddress(const QString& place);

    /// The address without its password.
    QString shown() const;
    /// Name of the database; empty if the service file tells it.
    QString database() const;
    /// What to call the project: the name of the database or of the service.
    QString title() const;
    void aim(QSqlDatabase& connection) const;

private:
    QUrl m_url;
    QList<QPair<QString, QString>> m_options;
};

} // namespace TechDB

#pragma once

#include "ServerAddress.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QString>
#include <QUrl>
#include <QUuid>
#include <QVariant>

#include <gtest/gtest.h>

/// An empty database on the server that the tests are given, if they are (`scripts/with-server`); gone with
/// its object, whoever still has it open.
class ServerDatabase {
public:
    static bool isThere() { return qEnvironmentVariableIsSet("VORN_TEST_SERVER"); }

    ServerDatabase() { onServer("CREATE DATABASE " + m_name); }
    ~ServerDatabase() { onServer("DROP DATABASE " + m_name + " WITH (FORCE)"); }
    ServerDatabase(const ServerDatabase&) = delete;
    ServerDatabase& operator=(const ServerDatabase&) = delete;

    QString address(const QString& user = QStringLiteral("vorn")) const {
        QUrl url(server());
        url.setPath("/" + m_name);
        url.setUserName(user);
        return url.toString();
    }

    /// Runs a statement in a connection of its own to an address, and gives the first column of its first
    /// row.
    static QVariant run(const QString& address, const QString& statement) {
        QVariant result;
        {
            QSqlDatabase connection = QSqlDatabase::addDatabase("QPSQL", "aside");
            TechDB::ServerAddress(address).aim(connection);
            EXPECT_TRUE(connection.open()) << qPrintable(connection.lastError().text());
            QSqlQuery query(connection);
            EXPECT_TRUE(query.exec(statement)) << qPrintable(statement + query.lastError().text());
            result = query.next() ? query.value(0) : QVariant();
        }
        QSqlDatabase::removeDatabase("aside");
        return result;
    }
    static void onServer(const QString& statement) { run(server(), statement); }

private:
    static QString server() { return qEnvironmentVariable("VORN_TEST_SERVER"); }

    const QString m_name = "test_" + QUuid::createUuid().toString(QUuid::Id128);
};

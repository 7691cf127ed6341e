#pragma once

#include "SqliteDialect.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QVariant>
#include <QVector>

#include <stdexcept>

/// A database file as the host opens its own, but nothing of the host between.
class PlainConnection {
public:
    PlainConnection(const QString& path, const QStringList& more = {})
        : m_database(QSqlDatabase::addDatabase("QSQLITE", path)) {
        m_database.setDatabaseName(path);
        m_database.open();
        const TechDB::SqliteDialect dialect;
        for (const QString& statement : dialect.setUp() + dialect.setUpOfOwn() + more) {
            run(statement);
        }
    }
    ~PlainConnection() {
        const QString name = m_database.connectionName();
        m_database = QSqlDatabase();
        QSqlDatabase::removeDatabase(name);
    }
    PlainConnection(const PlainConnection&) = delete;
    PlainConnection& operator=(const PlainConnection&) = delete;

    QSqlQuery prepared(const QString& statement) const {
        QSqlQuery query(m_database);
        query.setForwardOnly(true);
        if (!query.prepare(statement)) {
            throw std::runtime_error(query.lastError().text().toStdString());
        }
        return query;
    }
    void run(const QString& statement) const {
        QSqlQuery query = prepared(statement);
        start(query);
    }
    static void start(QSqlQuery& query) {
        if (!query.exec()) {
            throw std::runtime_error(query.lastError().text().toStdString());
        }
    }

private:
    QSqlDatabase m_database;
};

/// All rows of one table.
class Rows {
public:
    Rows(const PlainConnection& from, const QString& table) : m_table(table) {
        QSqlQuery query = from.prepared("SELECT * FROM " + table);
        PlainConnection::start(query);
        m_columns = query.record().count();
        while (query.next()) {
            for (int column = 0; column < m_columns; ++column) {
                m_values.append(query.value(column));
            }
        }
    }

    int count() const { return m_values.size() / m_columns; }
    const QVariant& value(int row, int column) const { return m_values.at(row * m_columns + column); }
    QSqlQuery insertion(const PlainConnection& into) const {
        return into.prepared("INSERT INTO " + m_table + " VALUES (?" +
                             QString(", ?").repeated(m_columns - 1) + ")");
    }
    void insert(QSqlQuery& insertion, int row) const {
        for (int column = 0; column < m_columns; ++column) {
            insertion.bindValue(column, value(row, column));
        }
        PlainConnection::start(insertion);
    }

private:
    QString m_table;
    int m_columns = 0;
    QVector<QVariant> m_values;
};

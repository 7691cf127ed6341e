#pragma once

#include <gtest/gtest.h>

#include <QSemaphore>
#include <QSqlDatabase>
#include <QSqlQuery>

#include <thread>

/// Another window that writes into a project until a little after it is told to end.
class OtherWriter {
public:
    explicit OtherWriter(const QString& path) : m_thread([this, path] { write(path); }) { m_begun.acquire(); }
    ~OtherWriter() {
        end();
        m_thread.join();
    }
    void end() { m_end.release(); }

private:
    void write(const QString& path) {
        {
            QSqlDatabase connection = QSqlDatabase::addDatabase("QSQLITE", "other");
            connection.setDatabaseName(path);
            EXPECT_TRUE(connection.open());
            EXPECT_TRUE(QSqlQuery(connection).exec("BEGIN IMMEDIATE"));
            m_begun.release();
            m_end.acquire();
            std::this_thread::sleep_for(std::chrono::seconds(1));
            EXPECT_TRUE(QSqlQuery(connection).exec("ROLLBACK"));
        }
        QSqlDatabase::removeDatabase("other");
    }

    QSemaphore m_begun;
    QSemaphore m_end;
    std::thread m_thread;
};

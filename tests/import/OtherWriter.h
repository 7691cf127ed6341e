#pragma once

#include <gtest/gtest.h>

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>

#include <chrono>
#include <future>
#include <thread>

/// Another window that writes into a project and takes its time.
class OtherWriter {
public:
    explicit OtherWriter(const QString& path) {
        m_thread = std::thread([this, path] { write(path); });
        m_begun.get_future().wait();
    }
    ~OtherWriter() {
        end();
        m_thread.join();
    }
    OtherWriter(const OtherWriter&) = delete;
    OtherWriter& operator=(const OtherWriter&) = delete;

    /// Soon, but not at once.
    void end() {
        if (!m_ending) {
            m_ending = true;
            m_end.set_value();
        }
    }

private:
    void write(const QString& path) {
        {
            QSqlDatabase connection = QSqlDatabase::addDatabase("QSQLITE", "other");
            connection.setDatabaseName(path);
            EXPECT_TRUE(connection.open());
            EXPECT_TRUE(QSqlQuery(connection).exec("BEGIN IMMEDIATE"));
            m_begun.set_value();
            m_end.get_future().wait();
            std::this_thread::sleep_for(std::chrono::seconds(1));
            EXPECT_TRUE(QSqlQuery(connection).exec("ROLLBACK"));
        }
        QSqlDatabase::removeDatabase("other");
    }

    std::promise<void> m_begun;
    std::promise<void> m_end;
    bool m_ending = false;
    std::thread m_thread;
};

#pragma once

#include "VKError.h"

#include <QFile>

#include <gtest/gtest.h>

/// The text of the failure of an operation; empty if there was none.
template <typename Operation>
std::string failure(const Operation& operation) {
    try {
        operation();
    } catch (const VKError& error) {
        return error.text().toStdString();
    }
    return {};
}

/// Succeeds if `text` holds `part`.
inline testing::AssertionResult says(const std::string& text, const std::string& part) {
    if (text.find(part) != std::string::npos) {
        return testing::AssertionSuccess();
    }
    return testing::AssertionFailure() << "\"" << text << "\" doesn't say \"" << part << "\"";
}

/// Fails the test unless the statement is refused with a text that holds `part`.
#define EXPECT_REFUSED(statement, part) EXPECT_TRUE(says(failure([&] { statement; }), part))

/// Makes a file and gives its path back.
inline QString fileWith(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size()) << qPrintable(path);
    return path;
}

inline QByteArray bytesOf(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return file.readAll();
}

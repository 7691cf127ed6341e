#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QString>
#include <QStringList>
#include <QVector>

/// Reads a table of two columns from text: a sample and what was measured on it, one pair a line, separated
/// by a tab or a semicolon. Values stay text: what a number is, the import wizard knows.
class TextPairs {
    Q_DECLARE_TR_FUNCTIONS(TextPairs)

public:
    /// More lines than a table of samples has; the limit keeps a hostile file from filling the memory.
    static constexpr int maxLines = 1'000'000;
    static constexpr int maxWarnings = 20;

    struct Pair {
        QString sample;
        QString value;
    };

    struct Warning {
        int line = 0; ///< from 1
        QString text; ///< half a sentence
    };

    struct Table {
        QVector<Pair> pairs;       ///< in the order of the lines; the first may be the column names
        QVector<Warning> warnings; ///< in the order of the lines, cut off after `maxWarnings`
    };

    /// Lines end in LF or CRLF; empty ones are passed over, and one without exactly two filled fields is left
    /// out with a warning. Text that is not UTF-8 is taken as Latin-1. Throws VKError, which names
    /// `fileName`, for bytes that are no text, a text without any pair, and one of more than `maxLines`
    /// lines.
    static Table read(const QByteArray& bytes, const QString& fileName);

private:
    [[noreturn]] static void refuse(const QString& fileName, const QString& cause);
    static QString textOf(const QByteArray& bytes);
    static void readLine(const QString& line, int number, Table& table);
};

#pragma once

#include <QByteArray>
#include <QString>

class QAbstractItemModel;

/// A table as CSV (RFC 4180): UTF-8 behind a byte order mark, by which spreadsheets know accents, a comma
/// between fields and CR LF after each line. Numbers are written with a point and lose nothing (`CellText`).
/// The first line holds the columns' headers; where rows have headers, these are the first column, itself
/// without a header.
///
/// A text is written as it is, one that begins with "=", "+", "-" or "@" as well: a spreadsheet may take it
/// for a formula, but a sign put before it would be read as part of the data by every other program, and by
/// this one.
class CsvText {
public:
    /// A flat table with values under VKDataModel::datasetRole; it outlives this object.
    explicit CsvText(const QAbstractItemModel& table);

    /// Whether any row has a header.
    static bool hasRowHeaders(const QAbstractItemModel& table);

    /// The mark and the first line.
    QByteArray head() const;
    /// One line. `row` is a row of the table.
    QByteArray row(int row) const;

    /// The whole text.
    QByteArray all() const;

private:
    QByteArray line(const QStringList& fields) const;

    const QAbstractItemModel& m_table;
    bool m_hasRowHeaders;
};

#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

#include <vector>

/// The tables of a spreadsheet file as values, without a trace of the format they came in.
namespace Workbook {

/// Cells of one rectangle that the sheet shows as one; its value stands in the first. Counted from 0, last
/// row and column included.
struct MergedRange {
    int firstRow = 0;
    int firstColumn = 0;
    int lastRow = 0;
    int lastColumn = 0;
};

/// A cell is empty (an invalid QVariant), a number (double) or a text (QString, never null, may be empty if
/// the file says so). A formula counts as its stored result; truth values are the texts TRUE and FALSE,
/// errors their texts (`#DIV/0!`), dates the text of ISO 8601 as `ExcelDate` gives it: 2024-05-03,
/// 2024-05-03T14:30:00, 14:30:00.
struct Sheet {
    QString name;
    bool hidden = false;
    /// Row by row; a row ends with its last cell that is not empty, and so does the sheet with its rows.
    std::vector<std::vector<QVariant>> rows;
    QVector<MergedRange> merged;

    int rowCount() const { return static_cast<int>(rows.size()); }
    /// Length of the longest row.
    int columnCount() const;
    /// Invalid outside of what is stored.
    QVariant cell(int row, int column) const;
};

/// All tables of one file, and what a person should know about how they were read.
struct Book {
    /// In the order of the file, worksheets alone; at least one.
    std::vector<Sheet> sheets;
    /// What was left out or read with a guess, one sentence each (translated, restricted rich text).
    QStringList warnings;
};

/// Limits against files made to exhaust the machine.
struct Limits {
    qint64 fileBytes = 200LL * 1024 * 1024;
    qint64 unpackedBytes = 1024LL * 1024 * 1024;
    /// Cells that are not empty, over all sheets.
    qint64 cells = 5'000'000;
    /// Places of all sheets: rows, and in each those up to its last cell that is not empty. Gaps take memory
    /// too.
    qint64 places = 20'000'000;
    int sheets = 1'000;
    int columns = 16'384;
    int rows = 1'048'576;
    int textLength = 32'767;
};

} // namespace Workbook

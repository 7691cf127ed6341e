#pragma once

#include <QString>

#include <vector>

class QAbstractItemModel;
class QItemSelection;

/// Selected cells as text that spreadsheets take when it is pasted: tabs between the fields, CR LF between
/// the rows, fields with a tab, a line end or a quote in quotes.
///
/// The block is rectangular: all rows by all columns of which a cell is selected, and cells that are not
/// selected are empty in it. Values are written as `CellText` has them; texts stay as they are (`CsvText`).
class ClipboardText {
public:
    /// More cells than any spreadsheet takes at a go.
    static constexpr qint64 maxCells = 20'000'000;

    /// The table's values stand under VKDataModel::datasetRole. Throws VKError for a block of more than
    /// `maxCells`.
    ClipboardText(const QAbstractItemModel& table, const QItemSelection& selection, QChar decimalPoint);

    QString cells() const;
    /// Below the columns' headers, and each row behind its own if there are any.
    QString cellsWithHeaders() const;

private:
    bool isSelected(std::size_t row, std::size_t column) const;
    QString rowOf(std::size_t row) const;

    const QAbstractItemModel& m_table;
    QChar m_decimalPoint;
    std::vector<int> m_rows;
    std::vector<int> m_columns;
    std::vector<bool> m_selected; // row by row
};

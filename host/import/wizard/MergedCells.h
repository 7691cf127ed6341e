#pragma once

#include "Workbook.h"

#include <vector>

/// Some rows of a sheet in which merged cells count in each place that they cover. Refers to the sheet.
///
/// The ranges come from a file: those that begin outside of the sheet don't count, those that reach out of it
/// are cut, and of those that overlap the first holds.
class MergedCells {
public:
    MergedCells(const Workbook::Sheet& sheet, int firstRow, int rowCount);

    int columnCount() const { return m_columns; }
    QVariant cell(int row, int column) const;
    /// The row that the value stands in: `row` itself, or one above in a cell merged downward.
    int originRow(int row, int column) const;
    /// Whether the place is covered by a cell that is merged over several columns.
    bool isWide(int row, int column) const;

private:
    static constexpr int unmerged = -1;

    void spread(int range);
    const Workbook::MergedRange* range(int row, int column) const;
    std::size_t place(int row, int column) const;

    const Workbook::Sheet& m_sheet;
    int m_firstRow;
    int m_rows;
    int m_columns;
    std::vector<int> m_ranges; // of each place, row by row
};

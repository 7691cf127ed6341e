#include "MergedCells.h"

#include <algorithm>

MergedCells::MergedCells(const Workbook::Sheet& sheet, int firstRow, int rowCount)
    : m_sheet(sheet), m_firstRow(std::clamp(firstRow, 0, sheet.rowCount())),
      m_rows(std::clamp(rowCount, 0, sheet.rowCount() - m_firstRow)), m_columns(sheet.columnCount()),
      m_ranges(static_cast<std::size_t>(m_rows) * static_cast<std::size_t>(m_columns), unmerged) {
    for (int i = 0; i < sheet.merged.size(); ++i) {
        spread(i);
    }
}

QVariant MergedCells::cell(int row, int column) const {
    const auto* merged = range(row, column);
    return merged == nullptr ? m_sheet.cell(row, column)
                             : m_sheet.cell(merged->firstRow, merged->firstColumn);
}

int MergedCells::originRow(int row, int column) const {
    const auto* merged = range(row, column);
    return merged == nullptr ? row : merged->firstRow;
}

bool MergedCells::isWide(int row, int column) const {
    const auto* merged = range(row, column);
    return merged != nullptr && merged->lastColumn > merged->firstColumn;
}

void MergedCells::spread(int range) {
    const auto& merged = m_sheet.merged[range];
    if (merged.firstRow < 0 || merged.firstColumn < 0) {
        return;
    }
    const int firstRow = std::max(merged.firstRow, m_firstRow);
    const int lastRow = std::min(merged.lastRow, m_firstRow + m_rows - 1);
    const int lastColumn = std::min(merged.lastColumn, m_columns - 1);
    for (int row = firstRow; row <= lastRow; ++row) {
        for (int column = merged.firstColumn; column <= lastColumn; ++column) {
            int& there = m_ranges[place(row, column)];
            if (there != unmerged) {
                return;
            }
            there = range;
        }
    }
}

const Workbook::MergedRange* MergedCells::range(int row, int column) const {
    if (row < m_firstRow || row >= m_firstRow + m_rows || column < 0 || column >= m_columns) {
        return nullptr;
    }
    const int range = m_ranges[place(row, column)];
    return range == unmerged ? nullptr : &m_sheet.merged[range];
}

std::size_t MergedCells::place(int row, int column) const {
    return static_cast<std::size_t>(row - m_firstRow) * static_cast<std::size_t>(m_columns) +
           static_cast<std::size_t>(column);
}

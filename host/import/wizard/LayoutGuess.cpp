#include "LayoutGuess.h"

#include "CellValue.h"
#include "MergedCells.h"
#include "NumberText.h"
#include "UnitText.h"

#include <algorithm>
#include <vector>

namespace {

constexpr int rowsLookedAt = 60;

struct RowLook {
    int words = 0; // with merged cells counted in each place
    int numbers = 0;
    int sources = 0; // merged cells counted once

    int filled() const { return words + numbers; }
};

bool isNumber(const QVariant& cell) {
    return cell.userType() != QMetaType::QString ||
           NumberText::mark(cell.toString()) != NumberText::Mark::NoNumber;
}

RowLook look(const MergedCells& cells, int row) {
    RowLook found;
    QString before;
    for (int column = 0; column < cells.columnCount(); ++column) {
        const QVariant cell = cells.cell(row, column);
        if (CellValue::isEmpty(cell)) {
            continue;
        }
        ++(isNumber(cell) ? found.numbers : found.words);
        const QString text = cell.toString();
        found.sources += cells.isWide(row, column) && text == before ? 0 : 1;
        before = text;
    }
    return found;
}

} // namespace

TableLayout LayoutGuess::of(const Workbook::Sheet& sheet) {
    const int rows = std::min(sheet.rowCount(), rowsLookedAt);
    const MergedCells cells(sheet, 0, rows);
    const LayoutGuess guess(cells, rows);
    return guess.layout(guess.headerRow());
}

TableLayout LayoutGuess::below(const Workbook::Sheet& sheet, int headerRow) {
    const int first = std::clamp(headerRow, 0, sheet.rowCount());
    const int rows = std::min(sheet.rowCount() - first, TableLayout::mostHeaderRows + 1);
    const MergedCells cells(sheet, first, rows);
    return LayoutGuess(cells, first + rows).layout(headerRow);
}

TableLayout LayoutGuess::layout(int headerRow) const {
    TableLayout found;
    if (headerRow == TableLayout::none) {
        return found;
    }
    found.headerRow = headerRow;
    found.headerRows = headerRows(headerRow);
    found.firstDataRow = headerRow + found.headerRows;
    if (isUnits(found.firstDataRow)) {
        found.unitsRow = found.firstDataRow++;
    }
    return found;
}

int LayoutGuess::headerRow() const {
    std::vector<RowLook> looks;
    int widest = 0;
    for (int row = 0; row < m_endRow; ++row) {
        looks.push_back(look(m_cells, row));
        widest = std::max(widest, looks.back().filled());
    }
    const auto isHeader = [widest](const RowLook& row) {
        constexpr int tenths = 10;
        constexpr int almostAll = 7;
        return row.words * tenths >= widest * almostAll && row.words > row.numbers * 3 &&
               row.sources >= std::min(widest, 2);
    };
    const auto found = std::find_if(looks.begin(), looks.end(), isHeader);
    return widest == 0 || found == looks.end() ? TableLayout::none : static_cast<int>(found - looks.begin());
}

int LayoutGuess::headerRows(int headerRow) const {
    int count = 1;
    while (count < TableLayout::mostHeaderRows && hasGroups(headerRow + count - 1) &&
           isWords(headerRow + count) && !isUnits(headerRow + count)) {
        ++count;
    }
    return count;
}

bool LayoutGuess::isUnits(int row) const {
    int units = 0;
    int others = 0;
    for (int column = 0; row < m_endRow && column < m_cells.columnCount(); ++column) {
        const QVariant cell = m_cells.cell(row, column);
        if (CellValue::isEmpty(cell) || m_cells.originRow(row, column) != row) {
            continue;
        }
        if (cell.userType() != QMetaType::QString) {
            return false;
        }
        ++(UnitText::isLikely(cell.toString()) || UnitText::plain(cell.toString()).isEmpty() ? units
                                                                                             : others);
    }
    return units > 0 && units >= others;
}

bool LayoutGuess::isWords(int row) const {
    const RowLook found = row < m_endRow ? look(m_cells, row) : RowLook();
    return found.words > 0 && found.numbers == 0;
}

bool LayoutGuess::hasGroups(int row) const {
    for (int column = 0; column < m_cells.columnCount(); ++column) {
        if (m_cells.isWide(row, column) && !CellValue::isEmpty(m_cells.cell(row, column))) {
            return true;
        }
    }
    return false;
}

#pragma once

#include "TableLayout.h"

class MergedCells;

namespace Workbook {
struct Sheet;
}

/// Finds header, units and samples of a sheet.
///
/// The header is the first row that is almost as wide as the table and made of words; titles and remarks
/// above it are narrower. A cell of it that is merged over several columns makes the next row part of it.
class LayoutGuess {
public:
    static TableLayout of(const Workbook::Sheet& sheet);

    /// What follows a header that is known; with `TableLayout::none` the samples begin in the first row.
    static TableLayout below(const Workbook::Sheet& sheet, int headerRow);

private:
    LayoutGuess(const MergedCells& cells, int endRow) : m_cells(cells), m_endRow(endRow) {}

    TableLayout layout(int headerRow) const;
    int headerRow() const;
    int headerRows(int headerRow) const;
    bool isUnits(int row) const;
    bool isWords(int row) const;
    bool hasGroups(int row) const;

    const MergedCells& m_cells;
    int m_endRow;
};

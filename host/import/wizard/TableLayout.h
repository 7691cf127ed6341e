#pragma once

/// Which rows of a sheet are what, counted from 0.
struct TableLayout {
    static constexpr int none = -1;
    static constexpr int mostHeaderRows = 4;

    /// The first row of the header; `none`: the columns have no names.
    int headerRow = none;
    /// Rows that the header takes; the names of one column are joined downward.
    int headerRows = 1;
    int unitsRow = none;
    /// All rows from here on are samples, but those without any cell.
    int firstDataRow = 0;

    bool operator==(const TableLayout& other) const {
        return headerRow == other.headerRow && headerRows == other.headerRows && unitsRow == other.unitsRow &&
               firstDataRow == other.firstDataRow;
    }
    bool operator!=(const TableLayout& other) const { return !(*this == other); }
};

#pragma once

#include "TableLayout.h"

#include <vector>

/// What becomes of one column of a sheet.
struct ColumnMapping {
    /// Targets are places in the list of choices that a person is given: these two, then the properties that
    /// the strategy offers.
    static constexpr int notImported = 0;
    static constexpr int asItIs = 1;
    static constexpr int firstProperty = 2;

    int column = 0; ///< in the sheet
    int target = notImported;
    /// Whether texts such as "12,5" are numbers; otherwise those such as "12.5" are.
    bool decimalComma = false;

    bool isImported() const { return target != notImported; }
    /// The place among the offered properties, negative for a column that is none of them.
    int property() const { return target - firstProperty; }
};

/// How a sheet becomes a table of samples: guessed first, then corrected by a person.
struct ImportMapping {
    int sheet = 0;
    TableLayout layout;
    /// Place in `columns` of the one that names the samples, which is always imported; negative if there
    /// are no columns.
    int identifier = TableLayout::none;
    /// The columns that have a name or a cell, in the order of the sheet.
    std::vector<ColumnMapping> columns;
};

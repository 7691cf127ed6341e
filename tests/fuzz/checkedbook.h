#pragma once

#include "VKError.h"
#include "Workbook.h"
#include "promises.h"

#include <cmath>

/// What every book of a reader holds to, or an error with its sentences.
template <class Read>
void requireBookOrError(const Read& read) {
    try {
        const Workbook::Book book = read();
        require(!book.sheets.empty());
        for (const Workbook::Sheet& sheet : book.sheets) {
            require(sheet.rows.empty() || !sheet.rows.back().empty());
            for (const auto& row : sheet.rows) {
                require(row.empty() || row.back().isValid());
                for (const QVariant& cell : row) {
                    const bool isNumber = cell.type() == QVariant::Double && std::isfinite(cell.toDouble());
                    const bool isText = cell.type() == QVariant::String && !cell.toString().isNull();
                    require(!cell.isValid() || isNumber || isText);
                }
            }
            for (const Workbook::MergedRange& range : sheet.merged)
                require(range.firstRow <= range.lastRow && range.firstColumn <= range.lastColumn);
        }
    } catch (const VKError& error) {
        require(!error.message().isEmpty() && !error.advice().isEmpty());
    }
}

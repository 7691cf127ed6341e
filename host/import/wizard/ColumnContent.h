#pragma once

#include <QStringList>

#include <vector>

namespace Workbook {
struct Sheet;
}

/// What the cells of one column are, counted.
struct ColumnContent {
    int numbers = 0;   ///< that need no decimal mark to be read: stored as such, or whole
    int withComma = 0; ///< texts that are numbers with a decimal comma alone
    int withPoint = 0;
    int commaOrThousands = 0; ///< as 1,234
    int pointOrThousands = 0; ///< as 1.234
    int words = 0;            ///< texts that are no numbers either way
    QStringList examples;     ///< the first few words that differ

    int filled() const {
        return numbers + withComma + withPoint + commaOrThousands + pointOrThousands + words;
    }
    int numbersUnder(bool decimalComma) const {
        return numbers + (decimalComma ? withComma + commaOrThousands : withPoint + pointOrThousands);
    }
    int textsUnder(bool decimalComma) const { return filled() - numbersUnder(decimalComma); }

    /// One for each column of the sheet, over the given rows.
    static std::vector<ColumnContent> read(const Workbook::Sheet& sheet, const std::vector<int>& rows);

    /// Whether each column has a decimal comma. Where a column leaves it open (all of it like 1,234), the
    /// sheet's other columns decide, and without them the comma is a decimal one.
    static std::vector<bool> decimalCommas(const std::vector<ColumnContent>& columns);
};

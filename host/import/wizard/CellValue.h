#pragma once

#include <QString>
#include <QVariant>

/// A cell of a sheet, as the import takes it.
class CellValue {
public:
    /// Whether there is nothing to see: no value, or a text of blanks.
    static bool isEmpty(const QVariant& cell);

    /// In one line, without blanks around it.
    static QString text(const QVariant& cell);

    /// A finite number as it is, a text without blanks around it, invalid for an empty cell. No text becomes
    /// a number: identifiers such as 007 stay what they are.
    static QVariant verbatim(const QVariant& cell);

    /// As `verbatim`, but a text that is a number under this decimal mark becomes one. Anything else, such
    /// as "<1", stays text.
    static QVariant imported(const QVariant& cell, bool decimalComma);
};

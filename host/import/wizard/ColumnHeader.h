#pragma once

#include "TableLayout.h"

#include <QCoreApplication>
#include <QStringList>

#include <vector>

namespace Workbook {
struct Sheet;
}

/// What a sheet calls one of its columns.
struct ColumnHeader {
    Q_DECLARE_TR_FUNCTIONS(ColumnHeader)

public:
    int column = 0;
    /// From top to bottom, each in one line; a cell merged downward counts once. None for an unnamed column.
    QStringList levels;
    /// From the units row; may be empty.
    QString unit;

    /// All levels: "Isotopes – δ13C".
    QString text() const;
    /// The name of a column that is imported as it is, with its unit: "Depth (m)". The column's letter
    /// stands in for a header.
    QString name() const;

    /// Of all columns of the sheet, whether filled or not.
    static std::vector<ColumnHeader> read(const Workbook::Sheet& sheet, const TableLayout& layout);
};

#pragma once

#include "Workbook.h"

#include <QString>
#include <QStringView>

#include <optional>

/// A place in a sheet, counted from 0, and how files write it: B7.
struct CellReference {
    int row = 0;
    int column = 0;

    /// Nothing for what is no reference to a cell within the limits.
    static std::optional<CellReference> parse(QStringView text, const Workbook::Limits& limits);

    QString text() const { return columnLetters(column) + QString::number(row + 1); }

    /// A, B, … Z, AA, …
    static QString columnLetters(int column);
};

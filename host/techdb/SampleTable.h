#pragma once

#include "TProperty.h"

#include <QList>
#include <QStringList>
#include <QVariant>
#include <QVector>

namespace TechDB {

/// The table of one sample: headers, properties, and cells row by row. A cell is a number (double), a text
/// or, where there is nothing, an invalid QVariant.
struct SampleTable {
    QStringList rowNames;
    QStringList columnNames;
    QVector<QVariant> cells;
    QList<TProperty> properties;

    const QVariant& cell(int row, int column) const { return cells.at(row * columnNames.size() + column); }
};

} // namespace TechDB

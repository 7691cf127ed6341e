#include "ColumnHeader.h"

#include "CellValue.h"
#include "MergedCells.h"
#include "UnitText.h"
#include "WorkbookModel.h"

namespace {

/// A unit without the brackets that some tables give their units row.
QString withoutBrackets(const QString& unit) {
    const bool isRound = unit.startsWith('(') && unit.endsWith(')');
    const bool isSquare = unit.startsWith('[') && unit.endsWith(']');
    return isRound || isSquare ? unit.mid(1, unit.size() - 2).trimmed() : unit;
}

QStringList levelsOf(const MergedCells& cells, const TableLayout& layout, int column) {
    QStringList levels;
    for (int row = layout.headerRow; row < layout.headerRow + layout.headerRows; ++row) {
        const bool isFirst = row == layout.headerRow || cells.originRow(row, column) == row;
        const QString text = CellValue::text(cells.cell(row, column));
        if (isFirst && !text.isEmpty()) {
            levels += text;
        }
    }
    return levels;
}

} // namespace

QString ColumnHeader::text() const {
    return levels.join(QStringLiteral(" – "));
}

QString ColumnHeader::name() const {
    if (levels.isEmpty()) {
        return tr("Column %1", "Colonne %1").arg(WorkbookModel::columnLetters(column));
    }
    const bool isPartOfText = text().endsWith(QLatin1Char(')')) || text().endsWith(QLatin1Char(']'));
    return unit.isEmpty() || isPartOfText ? text() : QStringLiteral("%1 (%2)").arg(text(), unit);
}

std::vector<ColumnHeader> ColumnHeader::read(const Workbook::Sheet& sheet, const TableLayout& layout) {
    const int columns = sheet.columnCount();
    std::vector<ColumnHeader> headers(static_cast<std::size_t>(columns));
    const bool isNamed = layout.headerRow != TableLayout::none;
    const MergedCells names(sheet, layout.headerRow, isNamed ? layout.headerRows : 0);
    const bool hasUnits = layout.unitsRow != TableLayout::none;
    const MergedCells units(sheet, layout.unitsRow, hasUnits ? 1 : 0);
    for (int column = 0; column < columns; ++column) {
        ColumnHeader& header = headers[static_cast<std::size_t>(column)];
        header.column = column;
        if (isNamed) {
            header.levels = levelsOf(names, layout, column);
        }
        if (hasUnits && units.originRow(layout.unitsRow, column) == layout.unitsRow) {
            const QString unit = CellValue::text(units.cell(layout.unitsRow, column));
            header.unit = UnitText::plain(unit).isEmpty() ? QString() : withoutBrackets(unit);
        }
    }
    return headers;
}

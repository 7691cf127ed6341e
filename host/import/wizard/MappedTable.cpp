#include "MappedTable.h"

#include "CellValue.h"
#include "VKDataModelGeneric.h"
#include "Workbook.h"

#include <algorithm>
#include <numeric>

namespace {

/// Places in the mapping, the identifying column before the others: who looks for it then finds it in a
/// table of few rows too.
std::vector<int> importedPlaces(const ImportMapping& mapping) {
    std::vector<int> places;
    for (int place = 0; place < static_cast<int>(mapping.columns.size()); ++place) {
        if (mapping.columns[static_cast<std::size_t>(place)].isImported()) {
            places.insert(place == mapping.identifier ? places.begin() : places.end(), place);
        }
    }
    return places;
}

} // namespace

std::vector<int> MappedTable::rows(const Workbook::Sheet& sheet, const TableLayout& layout) {
    std::vector<int> rows;
    for (int row = std::max(layout.firstDataRow, 0); row < sheet.rowCount(); ++row) {
        const auto& cells = sheet.rows[static_cast<std::size_t>(row)];
        if (!std::all_of(cells.begin(), cells.end(), CellValue::isEmpty)) {
            rows.push_back(row);
        }
    }
    return rows;
}

std::unique_ptr<VKDataModelGeneric> MappedTable::make(const Workbook::Sheet& sheet,
                                                      const ImportMapping& mapping,
                                                      const std::vector<int>& rows,
                                                      const QStringList& names) {
    const std::vector<int> places = importedPlaces(mapping);
    auto table = std::make_unique<VKDataModelGeneric>();
    table->createEmpty(static_cast<int>(places.size()), static_cast<int>(rows.size()));
    for (int column = 0; column < static_cast<int>(places.size()); ++column) {
        table->setHeaderData(column, Qt::Horizontal, names[places[static_cast<std::size_t>(column)]]);
    }
    for (int row = 0; row < static_cast<int>(rows.size()); ++row) {
        for (int column = 0; column < static_cast<int>(places.size()); ++column) {
            const int place = places[static_cast<std::size_t>(column)];
            const ColumnMapping& from = mapping.columns[static_cast<std::size_t>(place)];
            const QVariant cell = sheet.cell(rows[static_cast<std::size_t>(row)], from.column);
            table->setData(table->index(row, column), place == mapping.identifier
                                                          ? CellValue::verbatim(cell)
                                                          : CellValue::imported(cell, from.decimalComma));
        }
    }
    return table;
}

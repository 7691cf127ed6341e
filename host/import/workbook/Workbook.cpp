#include "Workbook.h"

#include <algorithm>

namespace Workbook {

int Sheet::columnCount() const {
    const auto longest = std::max_element(rows.begin(), rows.end(),
                                          [](const auto& a, const auto& b) { return a.size() < b.size(); });
    return longest == rows.end() ? 0 : static_cast<int>(longest->size());
}

QVariant Sheet::cell(int row, int column) const {
    if (row < 0 || row >= rowCount()) {
        return {};
    }
    const auto& cells = rows[static_cast<std::size_t>(row)];
    return column < 0 || column >= static_cast<int>(cells.size()) ? QVariant()
                                                                  : cells[static_cast<std::size_t>(column)];
}

} // namespace Workbook

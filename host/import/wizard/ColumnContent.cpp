#include "ColumnContent.h"

#include "CellValue.h"
#include "NumberText.h"
#include "Workbook.h"

#include <algorithm>

namespace {

constexpr int mostExamples = 3;

void countText(ColumnContent& content, const QString& text) {
    using Mark = NumberText::Mark;
    switch (NumberText::mark(text)) {
    case Mark::Whole:
        ++content.numbers;
        return;
    case Mark::Comma:
        ++content.withComma;
        return;
    case Mark::Point:
        ++content.withPoint;
        return;
    case Mark::CommaOrThousands:
        ++content.commaOrThousands;
        return;
    case Mark::PointOrThousands:
        ++content.pointOrThousands;
        return;
    case Mark::NoNumber:
        break;
    }
    ++content.words;
    if (content.examples.size() < mostExamples && !content.examples.contains(text)) {
        content.examples += text;
    }
}

} // namespace

std::vector<ColumnContent> ColumnContent::read(const Workbook::Sheet& sheet, const std::vector<int>& rows) {
    std::vector<ColumnContent> columns(static_cast<std::size_t>(sheet.columnCount()));
    for (const int row : rows) {
        const auto& cells = sheet.rows[static_cast<std::size_t>(row)];
        for (std::size_t column = 0; column < cells.size(); ++column) {
            const QVariant& cell = cells[column];
            if (cell.userType() == QMetaType::Double) {
                ++columns[column].numbers;
            } else if (!CellValue::isEmpty(cell)) {
                countText(columns[column], cell.toString());
            }
        }
    }
    return columns;
}

std::vector<bool> ColumnContent::decimalCommas(const std::vector<ColumnContent>& columns) {
    const auto hasComma = [](const ColumnContent& column) { return column.withComma > 0; };
    const auto hasPoint = [](const ColumnContent& column) { return column.withPoint > 0; };
    const bool sheetHasPoints = std::any_of(columns.begin(), columns.end(), hasPoint) &&
                                std::none_of(columns.begin(), columns.end(), hasComma);
    std::vector<bool> commas;
    commas.reserve(columns.size());
    for (const ColumnContent& column : columns) {
        const bool isOpen = column.withComma == column.withPoint;
        commas.push_back(isOpen ? column.commaOrThousands > column.pointOrThousands && !sheetHasPoints
                                : column.withComma > column.withPoint);
    }
    return commas;
}

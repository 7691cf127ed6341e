#include "ModelSheet.h"

#include "CellValue.h"
#include "WorkbookModel.h"

#include <QAbstractItemModel>

#include <algorithm>

namespace {

/// As a workbook has it.
QVariant plainCell(const QVariant& value) {
    switch (value.userType()) {
    case QMetaType::UnknownType:
    case QMetaType::Double:
    case QMetaType::QString:
        return value;
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Float:
        return value.toDouble();
    case QMetaType::Bool:
        return value.toBool() ? QStringLiteral("TRUE") : QStringLiteral("FALSE");
    default:
        return value.isNull() ? QVariant() : QVariant(value.toString());
    }
}

void append(Workbook::Sheet& sheet, std::vector<QVariant> cells) {
    while (!cells.empty() && CellValue::isEmpty(cells.back())) {
        cells.pop_back();
    }
    sheet.rows.push_back(std::move(cells));
}

std::vector<QVariant> names(const QAbstractItemModel& model) {
    std::vector<QVariant> found;
    for (int column = 0; column < model.columnCount(); ++column) {
        const QString name = model.headerData(column, Qt::Horizontal).toString();
        const bool isPlace =
            name == WorkbookModel::columnLetters(column) || name == QString::number(column + 1);
        found.emplace_back(isPlace || name.isEmpty() ? QVariant() : QVariant(name));
    }
    return found;
}

} // namespace

Workbook::Sheet ModelSheet::read(const QAbstractItemModel& model) {
    Workbook::Sheet sheet;
    std::vector<QVariant> header = names(model);
    if (!std::all_of(header.begin(), header.end(), CellValue::isEmpty)) {
        append(sheet, std::move(header));
    }
    for (int row = 0; row < model.rowCount(); ++row) {
        std::vector<QVariant> cells;
        for (int column = 0; column < model.columnCount(); ++column) {
            cells.push_back(plainCell(model.index(row, column).data()));
        }
        append(sheet, std::move(cells));
    }
    while (!sheet.rows.empty() && sheet.rows.back().empty()) {
        sheet.rows.pop_back();
    }
    return sheet;
}

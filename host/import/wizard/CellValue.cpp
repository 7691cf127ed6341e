#include "CellValue.h"

#include "NumberText.h"

#include <algorithm>
#include <cmath>

namespace {

bool isText(const QVariant& cell) {
    return cell.userType() == QMetaType::QString;
}

} // namespace

bool CellValue::isEmpty(const QVariant& cell) {
    if (!cell.isValid()) {
        return true;
    }
    if (!isText(cell)) {
        return false;
    }
    const QString text = cell.toString();
    return std::all_of(text.begin(), text.end(), [](QChar character) { return character.isSpace(); });
}

QString CellValue::text(const QVariant& cell) {
    return cell.toString().simplified();
}

QVariant CellValue::verbatim(const QVariant& cell) {
    if (isEmpty(cell)) {
        return {};
    }
    if (cell.userType() == QMetaType::Double && std::isfinite(cell.toDouble())) {
        return cell;
    }
    return cell.toString().trimmed();
}

QVariant CellValue::imported(const QVariant& cell, bool decimalComma) {
    QVariant value = verbatim(cell);
    if (isText(value)) {
        if (const auto number = NumberText::value(value.toString(), decimalComma)) {
            return *number;
        }
    }
    return value;
}

#include "IdentifierCheck.h"

#include "CellValue.h"
#include "Workbook.h"

#include <QHash>

#include <limits>

QString IdentifierCheck::stored(const QString& text) {
    bool isNumber = false;
    const float value = text.toFloat(&isNumber);
    if (!isNumber) {
        return text;
    }
    constexpr int smallest = std::numeric_limits<int>::min();
    constexpr auto beyond = -static_cast<float>(smallest); // the first float above all integers
    const bool fits = value >= static_cast<float>(smallest) && value < beyond;
    return QString::number(fits ? static_cast<int>(value) : smallest);
}

IdentifierCheck::IdentifierCheck(const Workbook::Sheet& sheet, const std::vector<int>& rows, int column) {
    struct Seen {
        int row = 0;
        int collision = -1;
    };
    QHash<QString, Seen> seen;
    seen.reserve(static_cast<int>(rows.size()));
    for (const int row : rows) {
        const QString identifier = stored(CellValue::verbatim(sheet.cell(row, column)).toString());
        if (identifier.isEmpty()) {
            m_emptyRows += row;
            continue;
        }
        const auto before = seen.find(identifier);
        if (before == seen.end()) {
            seen.insert(identifier, {row, -1});
            continue;
        }
        if (before->collision < 0) {
            before->collision = static_cast<int>(m_collisions.size());
            m_collisions.push_back({identifier, {before->row}});
        }
        m_collisions[static_cast<std::size_t>(before->collision)].rows += row;
    }
}

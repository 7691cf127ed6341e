#include "IdentifierCheck.h"

#include "CellValue.h"
#include "Workbook.h"

#include <QHash>

QString IdentifierCheck::stored(const QString& text) {
    constexpr float limit = 2147483648.0F; // what no integer of 32 bits holds stays text
    bool isNumber = false;
    const float value = text.toFloat(&isNumber);
    const bool fits = isNumber && value >= -limit && value < limit;
    return fits ? QString::number(static_cast<int>(value)) : text;
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

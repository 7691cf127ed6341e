#include "SortKey.h"

#include "CellText.h"
#include "VKDataModel.h"

#include <QLocale>
#include <QVariant>

#include <cmath>

SortKey::SortKey(const QVariant& value, const QCollator& collator) {
    bool isNumber = VKDataModel::isNumber(value);
    const QString text = isNumber ? QString() : CellText::of(value).trimmed();
    m_number = isNumber ? value.toDouble() : QLocale::c().toDouble(text, &isNumber);
    if (isNumber && !std::isnan(m_number)) {
        m_kind = Kind::Number;
    } else if (!text.isEmpty()) {
        m_kind = Kind::Text;
        m_text = collator.sortKey(text);
    }
}

bool SortKey::operator<(const SortKey& other) const {
    if (m_kind != other.m_kind) {
        return m_kind < other.m_kind;
    }
    if (m_kind == Kind::Number) {
        return m_number < other.m_number;
    }
    return m_kind == Kind::Text && m_text->compare(*other.m_text) < 0;
}

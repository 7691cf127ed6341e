#include "XlsStyles.h"

#include <cmath>

void XlsStyles::addFormat(quint16 format, const QString& code) {
    m_kinds.insert(format, ExcelFormat::kindOf(code));
}

QVariant XlsStyles::value(double number, quint16 style) const {
    if (!std::isfinite(number)) { // no calculation gives it; shown as the spreadsheet does
        return QStringLiteral("#NUM!");
    }
    return ExcelDate::value(number, m_origin, kindOf(style));
}

ExcelFormat::Kind XlsStyles::kindOf(quint16 style) const {
    if (style >= m_formats.size()) {
        return ExcelFormat::Kind::Number;
    }
    const quint16 format = m_formats[style];
    const auto spelledOut = m_kinds.constFind(format);
    return spelledOut == m_kinds.constEnd() ? ExcelFormat::kindOf(int{format}) : *spelledOut;
}

#pragma once

#include "ExcelDate.h"

#include <QHash>
#include <QString>
#include <QVariant>

#include <vector>

/// How a workbook shows its numbers, as far as it tells dates from numbers.
class XlsStyles {
public:
    void setOrigin(ExcelDate::Origin origin) { m_origin = origin; }

    /// Spells out a format; also one of those that hold without being spelled out.
    void addFormat(quint16 format, const QString& code);

    /// The cell styles are added in order; cells name them by their place.
    void addStyle(quint16 format) { m_formats.push_back(format); }

    /// What a cell with this number shows; of a style that isn't there the number.
    QVariant value(double number, quint16 style) const;

private:
    ExcelFormat::Kind kindOf(quint16 style) const;

    ExcelDate::Origin m_origin = ExcelDate::Origin::Year1900;
    QHash<quint16, ExcelFormat::Kind> m_kinds;
    std::vector<quint16> m_formats;
};

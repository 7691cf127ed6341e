#pragma once

#include "ExcelFormat.h"

#include <QStringRef>

#include <vector>

class XlsxXml;

/// The looks that cells refer to by number, as far as they say how to read the number in a cell.
class XlsxStyles {
public:
    /// None.
    XlsxStyles() = default;
    /// Throws VKError for XML that is no list of styles, or an absurdly long one.
    explicit XlsxStyles(XlsxXml& xml);

    /// `Number` for what is no number of a style, as spreadsheets take it.
    ExcelFormat::Kind kindOf(const QStringRef& style) const;

private:
    std::vector<ExcelFormat::Kind> m_kinds;
};

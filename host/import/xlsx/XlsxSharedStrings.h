#pragma once

#include <QString>

#include <optional>
#include <vector>

class XlsxBudget;
class XlsxXml;

/// The texts that a workbook keeps once for all its cells.
class XlsxSharedStrings {
public:
    /// None.
    XlsxSharedStrings() = default;
    /// Throws VKError for XML that is no such list, or a list longer than a workbook may have cells.
    XlsxSharedStrings(XlsxXml& xml, XlsxBudget& budget);

    /// The text of this number, counted from 0; nothing if it is no number of a text.
    std::optional<QString> at(const QString& index) const;

private:
    std::vector<QString> m_texts;
};

#pragma once

#include "ExcelDate.h"

#include <QString>

#include <vector>

class XlsxBudget;
class XlsxErrors;
class XlsxXml;

/// The part of a workbook that lists its sheets.
struct XlsxContents {
    /// A sheet of the list; `relation` names the part that holds it.
    struct Entry {
        QString name;
        bool hidden = false;
        QString relation;
    };

    std::vector<Entry> sheets;
    ExcelDate::Origin origin = ExcelDate::Origin::Year1900;

    /// Throws VKError for XML that is no list of sheets, or a too long one.
    static XlsxContents read(XlsxXml& xml, const XlsxBudget& budget, const XlsxErrors& errors);
};

#pragma once

#include "ImportMapping.h"

#include <QStringList>

#include <memory>

class VKDataModelGeneric;

namespace Workbook {
struct Sheet;
}

/// A sheet under a mapping, as the table of samples that is imported.
class MappedTable {
public:
    /// The rows of the samples: from the first data row to the end, without those in which all is empty.
    static std::vector<int> rows(const Workbook::Sheet& sheet, const TableLayout& layout);

    /// One row a sample and one column an imported column, with its name as header. The identifying column
    /// comes first and its cells stay as they are; the others hold numbers, texts or nothing. `names` has one
    /// for each column of the mapping. Throws VKError if that is more than a table holds.
    static std::unique_ptr<VKDataModelGeneric> make(const Workbook::Sheet& sheet,
                                                    const ImportMapping& mapping,
                                                    const std::vector<int>& rows, const QStringList& names);
};

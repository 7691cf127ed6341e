#pragma once

#include "Workbook.h"

class QAbstractItemModel;

/// A table of any model as a sheet, for tables that come from no workbook.
class ModelSheet {
public:
    /// Columns that the model names, other than by letters and numbers, get their names as the first row.
    static Workbook::Sheet read(const QAbstractItemModel& model);
};

#pragma once

#include <QString>

/// Number formats of spreadsheets, as far as they tell a point in time from a plain number: the file
/// stores both alike.
namespace ExcelFormat {

/// What the number of a cell stands for.
enum class Kind {
    Number,
    Date,
    Time,
    DateTime,
    Duration, ///< hours, minutes or seconds that count on, [h]:mm
};

/// Of a format that files name by its number alone; `Number` for those that files must spell out.
Kind kindOf(int builtinId);

/// Of a spelled-out format in the form files hold it, whose letters are the English ones in any language.
/// The first section counts, the one for positive values. Whatever is no format is a `Number`.
Kind kindOf(const QString& code);

} // namespace ExcelFormat

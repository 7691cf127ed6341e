#pragma once

#include "ExcelFormat.h"

#include <QVariant>

/// Points in time as spreadsheets store them: a count of days with the time of day as its fraction.
namespace ExcelDate {

/// The day that a file counts from.
enum class Origin {
    Year1900, ///< 1 is 1900-01-01; a 29 February 1900 is counted, as 60, though that year had none
    Year1904, ///< 0 is 1904-01-01
};

/// The value of a cell with this number under a format of this kind. The number itself for a `Number` and
/// for what the spreadsheet can't show as a date either: negative, before the first day, after the year 9999.
/// Else a text of ISO 8601, rounded to milliseconds, which stand there if they are not 0:
/// a date 2024-05-03 (with its time, if it has one: nothing stored is lost), a date with time
/// 2024-05-03T14:30:00, a time 14:30:00 (with its date, if it has one), a duration 36:00:00.
QVariant value(double serial, Origin origin, ExcelFormat::Kind kind);

} // namespace ExcelDate

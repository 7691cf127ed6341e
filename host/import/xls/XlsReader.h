#pragma once

#include "Workbook.h"

#include <QByteArray>

/// Reads workbooks of Excel 97 to 2003 (.xls, BIFF8). Charts and macros are left out; formatted text loses
/// its formats. A cell that holds no finite number but claims one reads `#NUM!`.
class XlsReader {
public:
    /// `fileName` is for messages. Throws VKError for whatever can't be read whole: another or an older
    /// format, a password, damage, or more than the limits allow.
    static Workbook::Book read(const QByteArray& bytes, const QString& fileName,
                               const Workbook::Limits& limits = {});
};

#pragma once

#include "Workbook.h"

#include <QByteArray>

/// Reads workbooks of the format .xlsx (also .xlsm, .xltx, .xltm: macros are passed over), in both its
/// dialects, transitional and strict.
class XlsxReader {
public:
    /// The whole workbook. Throws VKError, whose text names `fileName` and the cause, for bytes that are no
    /// such workbook, a damaged or encrypted one, or one over the limits. Trusts nothing of the bytes.
    static Workbook::Book read(const QByteArray& bytes, const QString& fileName,
                               const Workbook::Limits& limits = {});
};

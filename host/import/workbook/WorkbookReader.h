#pragma once

#include "Workbook.h"

#include <QByteArray>
#include <QCoreApplication>

/// Reads spreadsheet files, told apart by their content: names lie.
class WorkbookReader {
    Q_DECLARE_TR_FUNCTIONS(WorkbookReader)

public:
    /// How many bytes `looksLikeWorkbook` needs to see.
    static constexpr int beginningSize = 8;

    /// Whether a file that begins like this may be a spreadsheet file; other kinds of files begin so, too.
    static bool looksLikeWorkbook(const QByteArray& beginning);

    /// The whole workbook. Throws VKError, whose text names `fileName` and the cause, for bytes that are
    /// none, a damaged or protected one, or one over the limits.
    static Workbook::Book read(const QByteArray& bytes, const QString& fileName,
                               const Workbook::Limits& limits = {});

private:
    [[noreturn]] static void refuse(const QString& fileName, const QString& cause, const QString& advice);
};

#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

#include <xlsxwriter.h>

#include <stdexcept>

/// Writes a workbook of one sheet with a library that shares nothing with the readers: headers in the first
/// row, numbers as numbers, anything else as text.
inline void writeWorkbook(const QString& path, const QStringList& headers,
                          const QVector<QVariantList>& rows) {
    lxw_workbook* const book = workbook_new(path.toUtf8().constData());
    lxw_worksheet* const sheet = workbook_add_worksheet(book, "Lab");
    for (int row = 0; row <= rows.size(); ++row) {
        for (int column = 0; column < headers.size(); ++column) {
            const QVariant cell = row == 0 ? headers[column] : rows[row - 1].value(column);
            const auto line = static_cast<lxw_row_t>(row);
            const auto place = static_cast<lxw_col_t>(column);
            if (cell.type() == QVariant::Double) {
                worksheet_write_number(sheet, line, place, cell.toDouble(), nullptr);
            } else {
                worksheet_write_string(sheet, line, place, cell.toString().toUtf8().constData(), nullptr);
            }
        }
    }
    if (workbook_close(book) != LXW_NO_ERROR) {
        throw std::runtime_error("the workbook can't be written: " + path.toStdString());
    }
}

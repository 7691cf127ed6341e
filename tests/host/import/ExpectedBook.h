#pragma once

#include "HostTest.h"
#include "Workbook.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

/// The sample workbooks and what another reader found in them.
namespace ExpectedBook {

inline QByteArray content(const QString& path) {
    return bytesOf(path);
}

/// All with this suffix.
inline QFileInfoList samples(const QString& suffix) {
    return QDir(QStringLiteral(IMPORT_TEST_DATA)).entryInfoList({"*." + suffix});
}

/// A book in the form that the other reader's findings are stored in.
inline QJsonArray toJson(const Workbook::Book& book) {
    QJsonArray sheets;
    for (const Workbook::Sheet& sheet : book.sheets) {
        QJsonArray rows;
        for (const auto& cells : sheet.rows) {
            QJsonArray row;
            for (const QVariant& cell : cells) {
                EXPECT_TRUE(!cell.isValid() || cell.userType() == QMetaType::Double ||
                            (cell.userType() == QMetaType::QString && !cell.toString().isNull()));
                row.append(cell.isValid() ? QJsonValue::fromVariant(cell) : QJsonValue());
            }
            rows.append(row);
        }
        QJsonArray merged;
        for (const Workbook::MergedRange& range : sheet.merged) {
            merged.append(QJsonArray{range.firstRow, range.firstColumn, range.lastRow, range.lastColumn});
        }
        sheets.append(
            QJsonObject{{"name", sheet.name}, {"hidden", sheet.hidden}, {"rows", rows}, {"merged", merged}});
    }
    return sheets;
}

inline std::string text(const QJsonArray& sheets) {
    return QJsonDocument(sheets).toJson().toStdString();
}

/// Of the file beside the workbook.
inline std::string of(const QString& path) {
    return text(QJsonDocument::fromJson(content(path + ".json")).array());
}

} // namespace ExpectedBook

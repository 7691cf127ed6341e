#include "XlsReader.h"
#include "XlsSamples.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <cmath>

namespace {

std::string shown(const QVariant& value) {
    return std::string(value.typeName() != nullptr ? value.typeName() : "empty") + " " +
           value.toString().toStdString();
}

/// Numbers to the bit, all else as the contract of a cell says.
bool isAsTold(const QVariant& value, const QJsonValue& told) {
    if (told.isNull()) {
        return !value.isValid();
    }
    if (told.isDouble()) {
        return value.type() == QVariant::Double && value.toDouble() == told.toDouble();
    }
    return value.type() == QVariant::String && !value.toString().isNull() &&
           value.toString() == told.toString();
}

void compareRows(const Workbook::Sheet& sheet, const QJsonArray& told) {
    ASSERT_EQ(sheet.rowCount(), told.size());
    for (int row = 0; row < told.size(); ++row) {
        const QJsonArray cells = told[row].toArray();
        ASSERT_EQ(sheet.rows[static_cast<std::size_t>(row)].size(), static_cast<std::size_t>(cells.size()))
            << "row " << row;
        for (int column = 0; column < cells.size(); ++column) {
            EXPECT_TRUE(isAsTold(sheet.cell(row, column), cells[column]))
                << row << ", " << column << ": " << shown(sheet.cell(row, column)) << " for "
                << shown(cells[column].toVariant());
        }
    }
}

void compareSheet(const Workbook::Sheet& sheet, const QJsonObject& told) {
    SCOPED_TRACE(sheet.name.toStdString());
    EXPECT_EQ(sheet.name, told["name"].toString());
    EXPECT_EQ(sheet.hidden, told["hidden"].toBool());
    compareRows(sheet, told["rows"].toArray());
    const QJsonArray merged = told["merged"].toArray();
    ASSERT_EQ(sheet.merged.size(), merged.size());
    for (int i = 0; i < merged.size(); ++i) {
        const Workbook::MergedRange& range = sheet.merged[i];
        const QJsonArray expected{range.firstRow, range.firstColumn, range.lastRow, range.lastColumn};
        EXPECT_EQ(expected, merged[i].toArray());
    }
}

class XlsFile : public testing::TestWithParam<const char*> {};

/// The sample made record by record, one place exchanged.
Workbook::Book exchangedBook(const QByteArray& before, const QByteArray& after) {
    const QByteArray file = XlsSamples::bytesOf(QStringLiteral("results-small-stream.xls"));
    return XlsReader::read(XlsSamples::exchanged(file, before, after), QStringLiteral("x.xls"));
}

} // namespace

TEST_P(XlsFile, holds_in_every_cell_what_another_reader_finds) {
    const QString name = QString::fromLatin1(GetParam());
    const Workbook::Book book = XlsReader::read(XlsSamples::bytesOf(name), name);
    const QJsonArray told =
        QJsonDocument::fromJson(XlsSamples::bytesOf(name + QStringLiteral(".json"))).array();
    ASSERT_GT(told.size(), 0);
    ASSERT_EQ(book.sheets.size(), static_cast<std::size_t>(told.size()));
    for (int i = 0; i < told.size(); ++i) {
        compareSheet(book.sheets[static_cast<std::size_t>(i)], told[i].toObject());
    }
    const QStringList leftOut = book.warnings.filter(QStringLiteral("holds no table"));
    EXPECT_EQ(leftOut.size(), book.warnings.size());
    EXPECT_EQ(leftOut.size(), name.startsWith(QStringLiteral("results")) ? 2 : 0); // a chart and macros
}

INSTANTIATE_TEST_SUITE_P(Samples, XlsFile,
                         testing::Values("tables.xls", "long-texts.xls", "results-small-stream.xls",
                                         "results-large-sectors.xls", "results-listed-table.xls"));

TEST(XlsReader, a_formula_without_its_stored_text_is_empty_and_told) {
    const QByteArray text("\x07\x02\x0E\0\x0B\0\0stored text", 18);
    const Workbook::Book book = exchangedBook(text, QByteArray(text).replace(0, 2, "\x01\x03"));
    EXPECT_FALSE(book.sheets[0].cell(1, 0).isValid());
    EXPECT_EQ(book.sheets[0].cell(1, 1), QStringLiteral("Ωmega"));
    EXPECT_EQ(book.warnings.filter(QStringLiteral("In sheet <b>Results</b>, 1 formulas")).size(), 1);
}

TEST(XlsReader, what_is_no_number_and_an_unknown_error_stay_errors) {
    QByteArray number(8, '\0');
    qToLittleEndian<double>(7.25, number.data());
    QByteArray none(8, '\0');
    qToLittleEndian<quint64>(0x7FF8000000000000, none.data());
    EXPECT_EQ(exchangedBook(number, none).sheets[0].cell(3, 2), QStringLiteral("#NUM!"));
    const QByteArray error("\x05\0\x04\0\0\0\x2A\x01", 8);
    EXPECT_EQ(exchangedBook(error, QByteArray(error).replace('\x2A', '\x2B')).sheets[0].cell(5, 4),
              QStringLiteral("#ERROR43!"));
}

TEST(XlsReader, a_text_longer_than_allowed_is_cut_and_told) {
    Workbook::Limits limits;
    limits.textLength = 9'999;
    const Workbook::Book book = XlsReader::read(XlsSamples::bytesOf(QStringLiteral("long-texts.xls")),
                                                QStringLiteral("x.xls"), limits);
    EXPECT_EQ(book.sheets[0].cell(400, 0).toString().size(), 9'999);
    EXPECT_EQ(book.sheets[0].cell(401, 0).toString().size(), 7'000);
    EXPECT_EQ(book.warnings, QStringList{QStringLiteral("1 texts were cut after 9999 characters.")});
}

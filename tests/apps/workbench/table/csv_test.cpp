#include "CsvFile.h"
#include "CsvText.h"
#include "VKDataModelGeneric.h"
#include "VKError.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>

namespace {

constexpr int role = VKDataModel::datasetRole;

std::unique_ptr<VKDataModelGeneric> columnOf(const QVector<QVariant>& cells) {
    auto table = std::make_unique<VKDataModelGeneric>();
    table->createEmpty(1, cells.size());
    for (int row = 0; row < cells.size(); ++row) {
        table->setData(table->index(row, 0), cells.at(row), role);
    }
    return table;
}

QByteArray written(const QVariant& cell) {
    return CsvText(*columnOf({cell})).row(0).chopped(2);
}

template <typename Number>
bool sameBits(Number a, Number b) {
    return std::memcmp(&a, &b, sizeof(Number)) == 0;
}

} // namespace

TEST(CsvText, is_written_as_rfc_4180_has_it) {
    VKDataModelGeneric table;
    table.createEmpty(3, 2);
    table.setHeaderData(0, Qt::Horizontal, QStringLiteral("Qualité"), role);
    table.setHeaderData(1, Qt::Horizontal, QStringLiteral("a,b"), role);
    table.setHeaderData(1, Qt::Vertical, QStringLiteral("well \"7\""), role);
    table.setData(table.index(0, 0), QStringLiteral("two\r\nlines"), role);
    table.setData(table.index(0, 1), 0.5, role);
    table.setData(table.index(1, 0), QStringLiteral("=1+1"), role);
    table.setData(table.index(1, 2), QStringLiteral(" blank before"), role);
    EXPECT_EQ(CsvText(table).all().toStdString(), "\xef\xbb\xbf,Qualit\xc3\xa9,\"a,b\",\r\n"
                                                  ",\"two\r\nlines\",0.5,\r\n"
                                                  "\"well \"\"7\"\"\",=1+1,,\" blank before\"\r\n");
}

TEST(CsvText, numbers_are_short_and_read_back_to_the_same_bits) {
    EXPECT_EQ(written(0.1F), "0.1");
    EXPECT_EQ(written(0.1), "0.1");
    EXPECT_EQ(written(-0.0), "-0");
    EXPECT_EQ(written(100000.0F), "100000");
    EXPECT_EQ(written(1e15), "1e+15");
    EXPECT_EQ(written(1264), "1264");
    for (const double number :
         {0.1 + 0.2, 1.0 / 3, 5e-324, 1.7976931348623157e308, 9007199254740993.0, 123456.789e-9}) {
        EXPECT_TRUE(sameBits(written(number).toDouble(), number)) << written(number).constData();
    }
    for (const float number : {16777217.0F, 1.0F / 3, 1.17549435e-38F, 3.40282347e38F, 8.5899346e9F}) {
        EXPECT_TRUE(sameBits(std::strtof(written(number), nullptr), number)) << written(number).constData();
    }
}

TEST(CsvText, what_is_no_number_is_empty_but_never_a_blank_line) {
    EXPECT_EQ(written({}), "\"\"");
    EXPECT_EQ(written(std::numeric_limits<double>::quiet_NaN()), "\"\"");
    EXPECT_EQ(written(std::nanf("")), "\"\"");
    EXPECT_EQ(written(-std::numeric_limits<double>::infinity()), "-inf");
}

TEST(CsvFile, replaces_what_was_there_and_leaves_nothing_when_it_fails) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.csv"));
    CsvFile::write(*columnOf({1, 2, 3}), path);
    CsvFile::write(*columnOf({4}), path);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "\xef\xbb\xbf\"\"\r\n4\r\n");
    EXPECT_THROW(CsvFile::write(*columnOf({5}), folder.filePath(QStringLiteral("none/b.csv"))), VKError);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              QStringList{QStringLiteral("a.csv")});
}

#include "CsvText.h"
#include "MessageCollector.h"
#include "ObjectTable.h"
#include "ProjectFixture.h"
#include "VKDataModelGeneric.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>
#include <cstring>
#include <limits>

namespace {

using ObjectTableTest = ProjectTest;

constexpr int role = VKDataModel::datasetRole;

/// The table of an object as it is written, without the mark of its encoding.
std::string written(const VKObject2& object) {
    return CsvText(*ObjectTable::of(object)).all().mid(3).replace("\r\n", "\n").toStdString();
}

QByteArray written(const QVariant& cell) {
    VKDataModelGeneric table;
    table.createEmpty(1, 1);
    table.setData(table.index(0, 0), cell, role);
    return CsvText(table).row(0).chopped(2);
}

template <typename Number>
bool sameBits(Number a, Number b) {
    return std::memcmp(&a, &b, sizeof(Number)) == 0;
}

} // namespace

TEST(CsvText, is_written_as_rfc_4180_has_it) {
    VKDataModelGeneric table;
    table.createEmpty(3, 2);
    table.setHeaderData(0, Qt::Horizontal, "Qualité", role);
    table.setHeaderData(1, Qt::Horizontal, "a,b", role);
    table.setHeaderData(1, Qt::Vertical, "well \"7\"", role);
    table.setData(table.index(0, 0), "two\r\nlines", role);
    table.setData(table.index(0, 1), 0.5, role);
    table.setData(table.index(1, 0), "=1+1", role);
    table.setData(table.index(1, 2), " blank before", role);
    EXPECT_EQ(CsvText(table).all().toStdString(), "\xef\xbb\xbf,Qualit\xc3\xa9,\"a,b\",\r\n"
                                                  ",\"two\r\nlines\",0.5,\r\n"
                                                  "\"well \"\"7\"\"\",=1+1,,\" blank before\"\r\n");
}

TEST(CsvText, numbers_are_short_and_read_back_to_the_same_bits_and_what_is_none_is_no_blank_line) {
    const std::pair<QVariant, const char*> cells[] = {
        {0.1F, "0.1"},
        {0.1, "0.1"},
        {-0.0, "-0"},
        {100000.0F, "100000"},
        {1e15, "1e+15"},
        {1264, "1264"},
        {{}, "\"\""},
        {std::numeric_limits<double>::quiet_NaN(), "\"\""},
        {std::nanf(""), "\"\""},
        {-std::numeric_limits<double>::infinity(), "-inf"},
    };
    for (const auto& [cell, text] : cells) {
        EXPECT_EQ(written(cell), text);
    }
    for (const double number :
         {0.1 + 0.2, 1.0 / 3, 5e-324, 1.7976931348623157e308, 9007199254740993.0, 123456.789e-9}) {
        EXPECT_TRUE(sameBits(written(number).toDouble(), number)) << written(number).constData();
    }
    for (const float number : {16777217.0F, 1.0F / 3, 1.17549435e-38F, 3.40282347e38F, 8.5899346e9F}) {
        EXPECT_TRUE(sameBits(std::strtof(written(number), nullptr), number)) << written(number).constData();
    }
}

TEST_F(ObjectTableTest, a_curve_is_its_stored_floats) {
    const auto* const analysis = database->addAnalysis("A1", "SR", {{0.1F, 0.2F}, {7.25F, 1e-7F}});
    EXPECT_EQ(written(*analysis), "Time [s],FID\n0.1,7.25\n0.2,1e-07\n");
    EXPECT_EQ(written(*analysis->TIC()), written(*analysis));
    EXPECT_EQ(ObjectTable::of(*analysis)->name(), "A1");
    EXPECT_EQ(ObjectTable::of(*analysis)->project(), "lab");
    database->removeAnalysis(analysis->key());
    EXPECT_THROW(ObjectTable::of(*analysis), VKError);
}

TEST_F(ObjectTableTest, samples_are_joined_by_their_columns_names) {
    const auto* const well = database->addWell("W");
    EXPECT_EQ(ObjectTable::of(*well)->rowCount(), 0);
    database->addSample(well->key(), "s1", {{"r1", "r2"}, {"A", "B", "A"}, {1., 2., 3., 4., {}, "x"}, {}});
    database->addSample(well->key(), "s2", {{""}, {"C", "A"}, {5., 6.}, {}});
    EXPECT_EQ(written(*well), "Sample,Row,A,B,A,C\ns1,r1,1,2,3,\ns1,r2,4,,x,\ns2,,6,,,5\n");
}

TEST_F(ObjectTableTest, upright_samples_are_turned_into_rows) {
    const auto* const well = database->addWell("W");
    database->addSample(well->key(), "s2", {{"TOC", "Tmax"}, {"1", "2"}, {2.5, 3.5, 440., 450.}, {}});
    database->addSample(well->key(), "s1", {{"TOC", "Tmax"}, {""}, {1.5, 430.}, {}});
    const std::string turned = "Sample,TOC,Tmax\ns2,2.5,440\ns2,3.5,450\ns1,1.5,430\n";
    EXPECT_EQ(written(*well), turned);
    database->addSample(well->key(), "all", {{"TOC", "Tmax"}, {"a", "b", "c"}, {1., 2., 3., 4., 5., 6.}, {}});
    EXPECT_EQ(written(*well), turned) << "the table as a whole says nothing new";
}

TEST_F(ObjectTableTest, several_are_exported_under_safe_names_and_overwrite_nothing) {
    MessageCollector log;
    MessageLoggerInterface::setDefaultLogger(&log);
    const auto* const first = database->addAnalysis("../a:b", "SR", ramp());
    database->setOrigin(first->key(), {"/raw/a.S00", QString(64, 'a'), {}});
    const auto* const second = database->addAnalysis("..?a*b", "SR", ramp());
    const auto* const gone = database->addAnalysis("gone", "SR", ramp());
    database->removeAnalysis(gone->key());
    ASSERT_TRUE(QDir(folder.path()).mkdir("out"));
    const QDir out(path("out"));
    ObjectTable::exportCsv({first, gone, second}, out.path());
    ASSERT_EQ(out.entryList({"*.csv"}, QDir::Files).size(), 2);
    const QJsonObject origin = QJsonDocument::fromJson(bytesOf(out.filePath("tables.origin.json"))).object();
    EXPECT_EQ(origin["version"].toString(), VORN_VERSION);
    EXPECT_EQ(origin["project"].toString(), database->path());
    const QJsonArray inputs = origin["inputs"].toArray();
    ASSERT_EQ(inputs.size(), 2);
    EXPECT_EQ(inputs[0].toObject()["sha256"].toString(), QString(64, 'a'));
    EXPECT_TRUE(out.exists(inputs[0].toObject()["table"].toString()));
    EXPECT_TRUE(inputs[1].toObject()["sha256"].isNull());
    EXPECT_EQ(log.messages(MessageLevel::Error).size(), 1);
    ASSERT_EQ(log.messages(MessageLevel::Information).size(), 2);
    EXPECT_TRUE(log.messages(MessageLevel::Information).first().startsWith("2 tables"));
    ObjectTable::exportCsv({first}, out.path());
    EXPECT_EQ(out.entryList({"*.csv"}, QDir::Files).size(), 3);
    ObjectTable::exportCsv({first}, path("one.csv"));
    EXPECT_EQ(bytesOf(path("one.csv")), "\xef\xbb\xbfTime [s],FID\r\n0,2\r\n1,1\r\n2,0\r\n");
    ObjectTable::exportCsv({first, second}, path("nowhere"));
    EXPECT_EQ(log.messages(MessageLevel::Error).size(), 3);
    EXPECT_FALSE(QFile::exists(path("nowhere")));
    EXPECT_EQ(filesInFolder().filter(".csv"), QStringList{"one.csv"});
}

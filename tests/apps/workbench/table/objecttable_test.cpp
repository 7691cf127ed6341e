#include "MessageCollector.h"
#include "ObjectTable.h"
#include "ProjectFixture.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

using ObjectTableTest = ProjectTest;
using TechDB::SampleTable;

QString header(const VKDataModel& table, int column) {
    return table.headerData(column, Qt::Horizontal, VKDataModel::datasetRole).toString();
}

QStringList headers(const VKDataModel& table) {
    QStringList texts;
    for (int column = 0; column < table.columnCount(); ++column) {
        texts.append(header(table, column));
    }
    return texts;
}

QStringList rowOf(const VKDataModel& table, int row) {
    QStringList texts;
    for (int column = 0; column < table.columnCount(); ++column) {
        texts.append(table.index(row, column).data().toString());
    }
    return texts;
}

QJsonObject jsonOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
}

} // namespace

TEST_F(ObjectTableTest, a_curve_is_its_stored_floats) {
    const auto* const analysis = database->addAnalysis("A1", "SR", {{0.1F, 0.2F}, {7.25F, 1e-7F}});
    const auto table = ObjectTable::of(*analysis);
    EXPECT_EQ(table->name(), "A1");
    EXPECT_EQ(table->project(), "lab");
    EXPECT_EQ(headers(*table), (QStringList{"Time [s]", "FID"}));
    ASSERT_EQ(table->rowCount(), 2);
    EXPECT_EQ(table->index(1, 0).data().userType(), int(QMetaType::Float));
    EXPECT_EQ(table->index(1, 1).data().toFloat(), 1e-7F);
    EXPECT_EQ(ObjectTable::of(*analysis->TIC())->rowCount(), 2);
}

TEST_F(ObjectTableTest, samples_are_joined_by_their_columns_names) {
    const auto* const well = database->addWell("W");
    database->addSample(well->key(), "s1", {{"r1", "r2"}, {"A", "B", "A"}, {1., 2., 3., 4., {}, "x"}, {}});
    database->addSample(well->key(), "s2", {{""}, {"C", "A"}, {5., 6.}, {}});
    const auto table = ObjectTable::of(*well);
    EXPECT_EQ(headers(*table), (QStringList{"Sample", "Row", "A", "B", "A", "C"}));
    ASSERT_EQ(table->rowCount(), 3);
    EXPECT_EQ(rowOf(*table, 0), (QStringList{"s1", "r1", "1", "2", "3", ""}));
    EXPECT_EQ(rowOf(*table, 1), (QStringList{"s1", "r2", "4", "", "x", ""}));
    EXPECT_EQ(rowOf(*table, 2), (QStringList{"s2", "", "6", "", "", "5"}));
}

TEST_F(ObjectTableTest, upright_samples_are_turned_into_rows) {
    const auto* const well = database->addWell("W");
    database->addSample(well->key(), "Sample 2", {{"TOC", "Tmax"}, {"1", "2"}, {2.5, 3.5, 440., 450.}, {}});
    database->addSample(well->key(), "Sample 1", {{"TOC", "Tmax"}, {""}, {1.5, 430.}, {}});
    const auto table = ObjectTable::of(*well);
    EXPECT_EQ(headers(*table), (QStringList{"Sample", "TOC", "Tmax"}));
    ASSERT_EQ(table->rowCount(), 3);
    EXPECT_EQ(rowOf(*table, 1), (QStringList{"Sample 2", "3.5", "450"}));
    EXPECT_EQ(rowOf(*table, 2), (QStringList{"Sample 1", "1.5", "430"}));
    database->addSample(well->key(), "all", {{"TOC", "Tmax"}, {"a", "b", "c"}, {1., 2., 3., 4., 5., 6.}, {}});
    EXPECT_EQ(ObjectTable::of(*well)->rowCount(), 3) << "the table as a whole says nothing new";
}

TEST_F(ObjectTableTest, what_is_gone_can_not_be_read) {
    const auto* const analysis = database->addAnalysis("A1", "SR", ramp());
    database->removeAnalysis(analysis->key());
    EXPECT_THROW(ObjectTable::of(*analysis), VKError);
    EXPECT_EQ(ObjectTable::of(*database->addWell("empty"))->rowCount(), 0);
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
    const QJsonObject origin = jsonOf(out.filePath("tables.origin.json"));
    EXPECT_EQ(origin["version"].toString(), VORN_VERSION);
    EXPECT_EQ(origin["project"].toString(), database->path());
    ASSERT_EQ(origin["inputs"].toArray().size(), 2);
    const QJsonObject input = origin["inputs"].toArray().at(0).toObject();
    EXPECT_EQ(input["sha256"].toString(), QString(64, 'a'));
    EXPECT_TRUE(out.exists(input["table"].toString()));
    EXPECT_TRUE(origin["inputs"].toArray().at(1).toObject()["sha256"].isNull());
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

#include "TDatabase.h"
#include "VKDatabaseImport.h"
#include "WorkbookFile.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QThread>

namespace {

constexpr int tables = 3;
constexpr int shortest = 20; // rows of the first version; the second has twice as many

QString tableName(int table) {
    return QString("lab%1.xlsx").arg(table);
}

/// Every number of a version is the version's.
void writeVersion(const QString& folder, int version) {
    QDir().mkpath(folder);
    for (int table = 0; table < tables; ++table) {
        QVector<QVariantList> rows;
        for (int row = 0; row < shortest * version; ++row) {
            rows.append({QString("S%1").arg(row), version * 1.0, version * 1.0});
        }
        writeWorkbook(QDir(folder).filePath(tableName(table)), {"Sample", "C1", "C2"}, rows);
    }
}

/// Curves that differ, under names that no round before had.
void writeCurves(const QString& folder, int round) {
    QDir(folder).removeRecursively();
    QDir().mkpath(folder);
    const QStringList examples = QDir(VORN_EXAMPLES).entryList({"*.S00"}, QDir::Files);
    for (const QString& name : examples) {
        QFile::copy(QDir(VORN_EXAMPLES).filePath(name),
                    QDir(folder).filePath(QString("%1-%2").arg(round).arg(name)));
    }
}

/// Of one version from its first sample to the table as a whole.
void expectWhole(const TechDB::TDatabase& project, const TechDB::DatasetInfo& dataset) {
    const QVector<TechDB::SampleInfo> samples = project.samples(dataset.key);
    ASSERT_GT(samples.size(), 1);
    const int version = samples.size() == shortest + 1 ? 1 : 2;
    ASSERT_EQ(samples.size(), version * shortest + 1) << dataset.name.toStdString();
    for (const TechDB::SampleInfo& sample : samples) {
        const TechDB::SampleTable table = project.sampleTable(sample.key);
        const int columns = sample.key == samples.last().key ? version * shortest : 1;
        ASSERT_EQ(table.columnNames.size(), columns) << sample.name.toStdString();
        EXPECT_EQ(table.cell(table.rowNames.size() - 1, columns - 1), QVariant(version * 1.0));
    }
}

/// How many rounds: ten, or as many as the environment asks for.
int rounds() {
    const int asked = qEnvironmentVariableIntValue("VORN_KILLS");
    return asked > 0 ? asked : 10;
}

} // namespace

TEST(KilledImport, leaves_every_dataset_whole_and_every_analysis_with_its_curve) {
    const QTemporaryDir folder;
    const QString projectPath = folder.filePath("lab.vornproj");
    TechDB::TDatabase::create(projectPath);
    writeVersion(folder.filePath("one"), 1);
    writeVersion(folder.filePath("two"), 2);
    int analyses = 0;
    for (int round = 0; round < rounds(); ++round) {
        writeCurves(folder.filePath("raw"), round);
        QProcess importer;
        importer.start(VORN_IMPORTER, {projectPath, folder.path()});
        ASSERT_TRUE(importer.waitForReadyRead(30'000)) << importer.readAllStandardError().toStdString();
        QThread::msleep(QRandomGenerator::global()->bounded(1'000U));
        ASSERT_EQ(importer.state(), QProcess::Running) << importer.readAllStandardError().toStdString();
        importer.kill();
        ASSERT_TRUE(importer.waitForFinished());

        const auto project = TechDB::TDatabase::open(projectPath);
        EXPECT_EQ(project->problems(), QStringList());
        for (const TechDB::DatasetInfo& dataset : project->datasets()) {
            expectWhole(*project, dataset);
        }
        for (const TechDB::AnalysisInfo& analysis : project->analyses()) {
            EXPECT_NO_THROW(project->curve(analysis.key)) << analysis.name.toStdString();
        }
        EXPECT_GE(project->analyses().size(), analyses);
        analyses = project->analyses().size();
        EXPECT_NO_THROW(VKDatabaseImport::open(folder.filePath("lab.import")));
    }
    EXPECT_GT(analyses, 0) << "no kill came late enough to find anything";
}

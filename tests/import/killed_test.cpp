#include "ServerDatabase.h"
#include "TDatabase.h"
#include "VKDatabaseImport.h"
#include "WorkbookFile.h"

#include <gtest/gtest.h>

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QThread>

#include <memory>

namespace {

constexpr int tables = 3;
constexpr int shortest = 20; // rows of the first version; the second has twice as many

/// Every number of a version is the version's.
void writeVersion(const QString& folder, int version) {
    QDir().mkpath(folder);
    for (int table = 0; table < tables; ++table) {
        QVector<QVariantList> rows;
        for (int row = 0; row < shortest * version; ++row) {
            rows.append({QString("S%1").arg(row), version * 1.0, version * 1.0});
        }
        writeWorkbook(QDir(folder).filePath(QString("lab%1.xlsx").arg(table)), {"Sample", "C1", "C2"}, rows);
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
    const auto samples = project.sampleTables(dataset.key);
    ASSERT_GT(samples.size(), 1);
    const int version = samples.size() == shortest + 1 ? 1 : 2;
    ASSERT_EQ(samples.size(), version * shortest + 1) << dataset.name.toStdString();
    for (int place = 0; place < samples.size(); ++place) {
        const auto& [name, table] = samples.at(place);
        const int columns = place == samples.size() - 1 ? version * shortest : 1;
        ASSERT_EQ(table.columnNames.size(), columns) << name.toStdString();
        EXPECT_EQ(table.cell(table.rowNames.size() - 1, columns - 1), QVariant(version * 1.0));
    }
}

void expectSound(const TechDB::TDatabase& project) {
    EXPECT_EQ(project.problems(), QStringList());
    for (const TechDB::DatasetInfo& dataset : project.datasets()) {
        expectWhole(project, dataset);
    }
    for (const TechDB::AnalysisInfo& analysis : project.analyses()) {
        EXPECT_NO_THROW(project.curve(analysis.key)) << analysis.name.toStdString();
    }
}

/// Runs the importer on a project until it is killed.
struct Importer : QProcess {
    Importer(const QString& project, const QString& folder) {
        start(VORN_IMPORTER, {project, folder});
        EXPECT_TRUE(waitForReadyRead(30'000)) << readAllStandardError().toStdString();
    }
    void end() {
        EXPECT_EQ(state(), QProcess::Running) << readAllStandardError().toStdString();
        kill();
        EXPECT_TRUE(waitForFinished());
    }
};

/// How many rounds: ten, or as many as the environment asks for.
int rounds() {
    const int asked = qEnvironmentVariableIntValue("VORN_KILLS");
    return asked > 0 ? asked : 10;
}

class KilledImport : public testing::Test {
protected:
    KilledImport() {
        TechDB::TDatabase::create(place());
        writeVersion(folder.filePath("one"), 1);
        writeVersion(folder.filePath("two"), 2);
        writeCurves(folder.filePath("raw"), 0);
    }
    QString place() const { return server ? server->address() : folder.filePath("lab.vornproj"); }

    const QTemporaryDir folder;
    const std::unique_ptr<ServerDatabase> server =
        ServerDatabase::isThere() ? std::make_unique<ServerDatabase>() : nullptr;
};

} // namespace

TEST_F(KilledImport, leaves_every_dataset_whole_and_every_analysis_with_its_curve) {
    int analyses = 0;
    for (int round = 0; round < rounds(); ++round) {
        writeCurves(folder.filePath("raw"), round);
        Importer importer(place(), folder.path());
        QThread::msleep(QRandomGenerator::global()->bounded(1'000U));
        importer.end();

        const auto project = TechDB::TDatabase::open(place());
        expectSound(*project);
        EXPECT_GE(project->analyses().size(), analyses);
        analyses = project->analyses().size();
        if (!server) {
            EXPECT_NO_THROW(VKDatabaseImport::open(folder.filePath("lab.import")));
        }
    }
    EXPECT_GT(analyses, 0) << "no kill came late enough to find anything";
}

// A server goes on for a moment with what it was asked, so this happens to who looks after a kill as well.
TEST_F(KilledImport, is_seen_by_other_windows_as_whole_while_it_runs) {
    Importer importer(place(), folder.path());
    const auto project = TechDB::TDatabase::open(place());
    int looks = 0;
    for (const QDeadlineTimer end(2'000); !end.hasExpired() && !HasFailure(); ++looks) {
        expectSound(*project);
    }
    importer.end();
    EXPECT_GT(looks, 1);
    EXPECT_EQ(project->datasets().size(), tables);
}

TEST_F(KilledImport, of_two_windows_that_import_the_same_names_ends_one_after_the_other) {
    int datasets = 0;
    for (int round = 0; round < 3; ++round) {
        Importer one(place(), folder.path());
        Importer other(place(), folder.path());
        QThread::msleep(1'500 + QRandomGenerator::global()->bounded(500U));
        one.end();
        other.end();
        const auto project = TechDB::TDatabase::open(place());
        expectSound(*project);
        datasets = project->datasets().size();
    }
    EXPECT_EQ(datasets, tables);
}

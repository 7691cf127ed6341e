#include "ImportFixture.h"

#include "ImportRockEvalVI.h"
#include "SourceRockCtrl.h"
#include "TAnalysisData.h"
#include "VKDatabaseImport.h"
#include "VKObject2Analysis.h"

#include <QFile>
#include <QSqlDatabase>
#include <QSqlQuery>

#include <limits>

namespace {

/// Delivers what the test says.
struct FakeRawFile : ImportRockEvalVI {
    void setSource(const QString& folder, const QString& name, const QString& text,
                   TFileBuffer* buffer) override {
        EXPECT_TRUE(folder.isEmpty() && text.isEmpty());
        EXPECT_EQ(buffer, nullptr) << "the reader opens the file itself";
        source = name;
    }
    int dataCount() override { return count; }
    float* firstChannel() override { return first.empty() ? nullptr : first.data(); }
    float* secondChannel() override { return second.data(); }
    QAbstractItemModel* resultsModel() override { return results; }

    QString source;
    int count = 3;
    std::vector<float> first{0, 1, 2.5F};
    std::vector<float> second{10, 1.0F / 3, 7};
    VKDataModelGeneric* results = nullptr;
};

struct OtherAnalyses : VKImportAnalysisInterface {
    void prepareForProbe(bool) override {}
    bool acceptsFile(TFileBuffer&, const QString&, QString&) override { return true; }
    void setSource(const QString&, const QString&, const QString&, TFileBuffer*) override {}
};

struct TestRock : SourceRockCtrl {
    using SourceRockCtrl::import;
    using SourceRockCtrl::importR00;
    using SourceRockCtrl::importS00;
};

const QString path = QStringLiteral("/lab/X & Y.S00");

} // namespace

class RawImport : public ImportTest {
protected:
    RawImport() : imports(VKDatabaseImport::open(folder.filePath("imports"))) {
        host.imports = imports.get();
    }

    /// The text of the failure; empty if there was none.
    QString import(const QString& file = path) {
        return failure([&] { module.import(&rawFile, file); });
    }

    const std::unique_ptr<VKDatabaseImport> imports;
    FakeRawFile rawFile;
    TestRock module;
};

TEST_F(RawImport, a_signal_becomes_a_file_and_an_analysis_of_the_project_bit_for_bit) {
    EXPECT_EQ(import(), "");
    EXPECT_EQ(rawFile.source, path);
    EXPECT_TRUE(QFile::exists(imports->rootFolder() + "/" + VKObject2Analysis::folderName() +
                              "/X & Y.S00/X & Y.S00.tcm"));
    const VKObject2Analysis* const stored = project->getAnalysis("X & Y.S00");
    ASSERT_NE(stored, nullptr);
    const TAnalysisData curve = project->curve(stored->key());
    EXPECT_EQ(curve.x(), rawFile.first);
    EXPECT_EQ(curve.y(), rawFile.second);
    EXPECT_EQ(project->analyses().first().analysisType, "Source Rock QAQC");
    EXPECT_EQ(host.notified, QList<int>({1}));
    EXPECT_EQ(import(), "") << "once more";
    EXPECT_EQ(project->analyses().size(), 1);
}

TEST_F(RawImport, a_signal_that_is_not_whole_is_refused_by_the_step_that_sees_it) {
    rawFile.count = -9999;
    EXPECT_EQ(import(), "No data imported from /lab/X &amp; Y.S00") << "the whole path, in this text alone";
    rawFile.count = 0;
    EXPECT_EQ(import(), "Error while retrieving S00 imported data");
    rawFile.count = -2; // no code that is known, so the store is asked
    EXPECT_EQ(import(), "Error while saving temporary analysis X &amp; Y.S00");
    rawFile.count = 3;
    rawFile.second[1] = std::numeric_limits<float>::infinity();
    EXPECT_EQ(import(), "Error while saving temporary analysis X &amp; Y.S00");
    rawFile.second.clear(); // a missing second channel is the store's affair too
    EXPECT_EQ(import(), "Error while saving temporary analysis X &amp; Y.S00");
    rawFile.first.clear();
    EXPECT_EQ(import(), "Error while retrieving S00 imported data");
    QString name = "x";
    module.importS00(nullptr, name);
    module.importR00(nullptr, name);
    OtherAnalyses other;
    module.import(&other, path);
    EXPECT_TRUE(project->analyses().isEmpty());
    EXPECT_TRUE(host.notified.isEmpty());
}

TEST_F(RawImport, what_the_project_has_already_is_a_success_and_what_it_refuses_is_not) {
    host.project = imports.get();
    EXPECT_EQ(import(), "");
    EXPECT_EQ(host.notified, QList<int>({1})) << "told all the same";
    host.project = project.get();
    {
        QSqlDatabase other = QSqlDatabase::addDatabase("QSQLITE", "behind");
        other.setDatabaseName(project->path());
        ASSERT_TRUE(other.open());
        QSqlQuery query(other);
        EXPECT_TRUE(query.exec("CREATE TRIGGER full BEFORE INSERT ON analyses "
                               "BEGIN SELECT RAISE(ABORT, 'full'); END"));
    }
    QSqlDatabase::removeDatabase("behind");
    EXPECT_EQ(import("/lab/Z & Y.S00"), "Error while saving analysis Z &amp; Y.S00");
    EXPECT_NE(imports->getAnalysis("Z & Y.S00"), nullptr) << "what came before stays";
    host.imports = nullptr; // no project is open
    EXPECT_EQ(import(), "Error while saving temporary analysis X &amp; Y.S00");
    EXPECT_EQ(host.notified.size(), 1);
}

TEST_F(RawImport, results_become_a_dataset_of_one_sample_and_replace_it_unasked) {
    VKDataModelGeneric results;
    fill(results, {"Value"}, {{"a"}, {1.5}});
    rawFile.count = -1;
    EXPECT_EQ(import("/lab/X.R00"), "Aucune donnée R00 à importer") << "in every language";
    rawFile.results = &results;
    EXPECT_EQ(import("/lab/X.R00"), "");
    results.setData(results.index(1, 0), 2.5);
    EXPECT_EQ(import("/lab/X.R00"), "");
    EXPECT_EQ(sampleNames("X.R00"), QStringList("Source Rock QAQC"));
    const TechDB::SampleTable stored = sample("X.R00", "Source Rock QAQC");
    EXPECT_EQ(stored.cells, QVector<QVariant>({"a", 2.5})) << "as it stands, and the second in its place";
    EXPECT_EQ(stored.columnNames, QStringList("Value"));
    EXPECT_EQ(stored.properties.value(0).name(), "Vorn_parameter");
    EXPECT_EQ(host.notified, QList<int>({3, 3}));
    results.setData(results.index(1, 0), std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(import("/lab/X.R00"), "Error while saving X.R00");
}

TEST_F(RawImport, failures_speak_french_when_the_application_does) {
    const FrenchTexts french;
    rawFile.count = -9999;
    EXPECT_EQ(import("/a"), "Aucune données importées depuis /a");
    rawFile.count = 0;
    EXPECT_EQ(import("/a"), "Erreur lors de la récupération des données S00 importées");
    rawFile.count = -2;
    EXPECT_EQ(import("/a"), "Erreur lors de la sauvegarde temporaire de l'analyse a");
    VKDataModelGeneric results;
    fill(results, {"Value"}, {{std::numeric_limits<double>::quiet_NaN()}});
    rawFile.count = -1;
    rawFile.results = &results;
    EXPECT_EQ(import("/a"), "Erreur lors de la sauvegarde de a");
}

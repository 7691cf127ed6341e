#include "ImportFixture.h"
#include "ImportRockEvalVI.h"
#include "SourceRockCtrl.h"
#include "VKDatabaseImport.h"
#include "VKImportCtrl.h"
#include "VKObject2Analysis.h"

#include <QFile>

#include <limits>

namespace {

/// Delivers what the test says.
struct FakeRawFile : ImportRockEvalVI {
    void setSource(const QString&, const QString& name, const QString&, TFileBuffer* buffer) override {
        EXPECT_TRUE(name.startsWith("/lab/") && buffer == nullptr);
    }
    int dataCount() override { return count; }
    float* firstChannel() override { return first.empty() ? nullptr : first.data(); }
    float* secondChannel() override { return second.empty() ? nullptr : second.data(); }
    QAbstractItemModel* resultsModel() override { return results; }

    int count = 3;
    std::vector<float> first{0, 1, 2.5F};
    std::vector<float> second{10, 1.0F / 3, 7};
    VKDataModelGeneric* results = nullptr;
};

struct TestRock : SourceRockCtrl {
    using SourceRockCtrl::import, SourceRockCtrl::importFiles, SourceRockCtrl::model;
};

} // namespace

/// A host that lacks readers: this program's definition stands before that of the host's library.
VKImportInterface* VKImportCtrl::getDll(int) {
    return nullptr;
}

class RawImport : public ImportTest {
protected:
    RawImport() : imports(VKDatabaseImport::open(folder.filePath("imports"))) {
        host.imports = imports.get();
    }

    /// The text of the failure; empty if there was none.
    QString import(int count, const QString& path = "/lab/X&Y.S00") {
        rawFile.count = count;
        return failure([&] { module.import(&rawFile, path); });
    }

    const std::unique_ptr<VKDatabaseImport> imports;
    FakeRawFile rawFile;
    TestRock module;
    const QString notWritten =
        QString("Error while saving temporary analysis %1|Erreur lors de la sauvegarde "
                "temporaire de l'analyse %1")
            .arg("X&amp;Y.S00");
};

TEST_F(RawImport, a_signal_becomes_a_file_and_an_analysis_of_the_project_bit_for_bit) {
    EXPECT_EQ(import(3), "");
    EXPECT_TRUE(QFile::exists(imports->rootFolder() + "/" + VKObject2Analysis::folderName() +
                              "/X&Y.S00/X&Y.S00.tcm"));
    const TAnalysisData curve = project->curve(project->getAnalysis("X&Y.S00")->key());
    EXPECT_TRUE(curve.x() == rawFile.first && curve.y() == rawFile.second);
    EXPECT_EQ(project->analyses().first().analysisType, "Source Rock QAQC");
    host.project = imports.get(); // which holds it already
    EXPECT_EQ(import(3), "");
    EXPECT_EQ(host.notified, QList<int>({1, 1})) << "told all the same";
}

TEST_F(RawImport, a_signal_that_is_not_whole_is_refused_by_the_step_that_sees_it) {
    EXPECT_EQ(import(-9999), "No data imported from /lab/X&amp;Y.S00|Aucune données importées depuis "
                             "/lab/X&amp;Y.S00");
    const QString noSignal = "Error while retrieving S00 imported data|Erreur lors de la récupération des "
                             "données S00 importées";
    EXPECT_EQ(import(0), noSignal);
    EXPECT_EQ(import(-2), notWritten) << "no code that is known, so the store is asked";
    rawFile.second[1] = std::numeric_limits<float>::infinity();
    EXPECT_EQ(import(3), notWritten);
    rawFile.second.clear();
    EXPECT_EQ(import(3), notWritten) << "a missing second channel is the store's affair too";
    rawFile.first.clear();
    EXPECT_EQ(import(3), noSignal);
    host.imports = nullptr; // no project is open
    rawFile.first = {0, 1, 2};
    EXPECT_EQ(import(3), notWritten);
    EXPECT_TRUE(project->analyses().isEmpty() && host.notified.isEmpty());
}

TEST_F(RawImport, results_become_a_dataset_of_one_sample_and_replace_it_unasked) {
    VKDataModelGeneric results;
    fill(results, {"Value"}, {{"a"}, {1.5}});
    EXPECT_EQ(import(-1, "/lab/X.R00"), "Aucune donnée R00 à importer") << "in every language";
    rawFile.results = &results;
    EXPECT_EQ(import(-1, "/lab/X.R00"), "");
    results.setData(results.index(1, 0), 2.5);
    EXPECT_EQ(import(-1, "/lab/X.R00"), "");
    EXPECT_EQ(sample("X.R00").rowNames, QStringList("Source Rock QAQC"));
    EXPECT_EQ(sample("X.R00", "Source Rock QAQC").cells, QVector<QVariant>({"a", 2.5})) << "the second one's";
    EXPECT_EQ(host.notified, QList<int>({3, 3}));
    results.setData(results.index(1, 0), std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(import(-1, "/lab/X.R00"), "Error while saving X.R00|Erreur lors de la sauvegarde de X.R00");
}

TEST_F(RawImport, missing_readers_of_tables_are_told_and_missing_ones_of_raw_files_end_the_pass) {
    const QString missing = "Error while retrieving import information|Erreur lors de la récupération des "
                            "informations d'importation";
    module.model().insert("/x.xls", 0);
    EXPECT_EQ(failure([this] { module.importFiles(); }), missing) << "leaves the pass";
    EXPECT_EQ(errors(), QStringList(missing)) << "that of the tables; the other is for whom it reaches";
}

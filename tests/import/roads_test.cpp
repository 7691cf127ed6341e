#include "CustomImportCtrl.h"
#include "ImportFixture.h"
#include "ProjectTree.h"
#include "TVornCompoundPrivate.h"
#include "TableView.h"
#include "VKDataModelGeneric.h"
#include "VKListViewSignal.h"
#include "VKObject2Analysis.h"
#include "Workspace.h"

#include <QAction>
#include <QLineEdit>
#include <QTabWidget>
#include <QTreeView>

class ImportRoads : public ImportTest {
protected:
    using Kind = ImportModules::Kind;

    void importFiles(Kind kind, const QStringList& paths) { workbench->imports().importFiles(kind, paths); }
    /// As who deletes the rows and drops the files once more.
    void importAnew(Kind kind, const QStringList& paths) {
        workbench->imports().bar(kind)->closeRequested();
        settle();
        importFiles(kind, paths);
    }
};

TEST_F(ImportRoads, raw_files_end_as_grades) {
    const QStringList names = {"good-clean-01.S00", "double-clean-01.S00", "flat-broad-01.S00"};
    importFiles(Kind::SourceRock,
                {example(names[0]), example(names[1]), example(names[2]), example("good-clean-01.R00")});
    EXPECT_EQ(errors(), QStringList());
    ASSERT_EQ(project().datasets().size(), 1);
    EXPECT_EQ(project().datasets()[0].name, "good-clean-01.R00");
    QList<const VKObject2*> dragged;
    for (const QString& name : names) {
        dragged += project().getAnalysis(name);
    }
    workbench->qualityCheck().send(dragged);
    QList<QColor> colours;
    for (const QString& name : names) {
        colours += workbench->qualityCheck()
                       .list()
                       ->findItems(name, Qt::MatchExactly)
                       .value(0)
                       ->background(0)
                       .color();
    }
    EXPECT_EQ(colours, QList<QColor>({Qt::green, "orange", Qt::red}));
}

TEST_F(ImportRoads, a_table_goes_through_the_wizard_into_the_tree_and_a_table_view) {
    for (const QString answer : {"Cancel", "Import"}) {
        EXPECT_TRUE(project().datasets().isEmpty());
        const ModalAnswers answers({answer});
        importFiles(Kind::SourceRock, {});
        importAnew(Kind::SourceRock, {example("tables/source-rock.xlsx")});
        EXPECT_EQ(errors(), QStringList());
        EXPECT_EQ(answers.asked().size(), 1);
    }
    const QString dataset = "Source Rock-source-rock.xlsx";
    EXPECT_EQ(sample(dataset).rowNames.value(0), "Sample ALB-01");
    const TechDB::SampleTable table = sample(dataset, "Source Rock");
    ASSERT_EQ(table.columnNames.size(), 24) << "a column a sample";
    EXPECT_EQ(table.columnNames[0], "ALB-01");
    const QStringList& rows = table.rowNames;
    ASSERT_TRUE(rows.contains("Tmax") && rows.contains("S1")) << rows.join(", ");
    EXPECT_EQ(table.cell(rows.indexOf("Tmax"), 0), QVariant(450.0));
    EXPECT_EQ(table.cell(rows.indexOf("S1"), 5), QVariant("<0.02"));

    settle(); // the tree follows once the events at hand are done
    tree().findChild<QLineEdit*>()->setText(dataset);
    tree().findChild<QTreeView*>()->selectAll();
    tree().openAction()->trigger();
    ASSERT_NE(dynamic_cast<TableView*>(workspace().currentPage()), nullptr);
    workspace().currentPage()->setWindowTitle("R&D");
    const auto* const tabs = workspace().findChild<QTabWidget*>();
    EXPECT_EQ(tabs->tabText(tabs->currentIndex()), "R&&D") << "no key of its own";
}

TEST_F(ImportRoads, unknown_columns_become_parameters_once) {
    VKDatabaseVornMGR& catalogue = *VKDatabaseVornMGR::getInstance();
    TechDB::TVornCompoundPrivate compound("0");
    compound.setCompoundName("Pr/Ph");
    const QString id = catalogue.db(9)->addCompound(&compound, "-9999")->recordId();
    const QString file = path("custom.xlsx");
    writeWorkbook(file, {"Sample", "Pr/Ph", "x<b>1", "TOC (wt%)"}, {{"A", 0.8, 0.2, 3.5}});
    const ModalAnswers answers({"Overwrite", "Écraser"});
    importFiles(Kind::Custom, {file});
    EXPECT_TRUE(
        informations().contains("Parameter(s) Pr/Ph, x<b>1 were(was) successfully added to  Vorn database"))
        << informations().join("\n");
    EXPECT_EQ(warnings(), QStringList());
    EXPECT_NE(catalogue.db(9)->findPair(id, "none"), nullptr) << "of the compound there was";
    workbench->language().choose(LanguageSwitch::Language::French);
    importAnew(Kind::Custom, {file});
    EXPECT_TRUE(
        warnings().contains("Le(s) paramètre(s) Pr/Ph, x<b>1 existe(nt) déjà en base de données Vorn "))
        << warnings().join("\n");

    struct Custom : CustomImportCtrl {
        using CustomImportCtrl::specificProcess;
    } module;
    const int told = workbench->log().rowCount();
    VKDataModelGeneric table;
    table.createEmpty(1, 1);
    module.specificProcess(&table);
    EXPECT_EQ(workbench->log().rowCount(), told) << "a column without a name is none";
    module.specificProcess(nullptr);
    EXPECT_EQ(errors(), QStringList("Impossible de récupérer les données importées lors de la création des "
                                    "pseudo-composés"));
    catalogue.setPlace(file + "/catalogue"); // below a file, so it can't be made
    writeWorkbook(file, {"Sample", "new"}, {{"A", 0.8}, {"B", 0.9}});
    importAnew(Kind::Custom, {file});
    EXPECT_EQ(errors().last(), "Une erreur interne est survenue : impossible de créer des pseudo-composés");
    EXPECT_EQ(sample("Import personnalisé-custom.xlsx").rowNames.size(), 3) << "stored all the same";
}

TEST_F(ImportRoads, raw_files_of_one_name_are_both_kept_unless_they_hold_the_same_curve) {
    for (const char* const source : {"good-clean-01.S00", "double-clean-01.S00", "good-clean-01.S00"}) {
        importFiles(Kind::SourceRock, {});
        importAnew(Kind::SourceRock, {made("X.S00", bytesOf(example(source)))});
    }
    EXPECT_EQ(errors(), QStringList());
    ASSERT_EQ(project().analyses().size(), 2);
    EXPECT_EQ(project().analyses()[0].name, "X.S00");
    EXPECT_EQ(project().analyses()[1].name, "X.S00 (2)");
}

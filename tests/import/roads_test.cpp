#include "ExampleProject.h"
#include "ImportModules.h"
#include "ModalAnswers.h"
#include "ModuleObserver.h"
#include "ProjectTree.h"
#include "TDatabase.h"
#include "TEditorMatrix.h"
#include "TableView.h"
#include "VKDataModel.h"
#include "VKDatabaseVornMGR.h"
#include "VKListViewSignal.h"
#include "VKObject2Analysis.h"
#include "VKObject2Well.h"
#include "WorkbenchFixture.h"
#include "WorkbookFile.h"
#include "Workspace.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QTreeView>
#include <QTreeWidget>

#include <algorithm>

/// The workbench with an empty project and a catalogue of parameters of its own.
class ImportRoads : public WorkbenchFixture {
protected:
    using Kind = ImportModules::Kind;

    ImportRoads() {
        VKDatabaseVornMGR::getInstance()->setPlace(path("parameters.sqlite"));
        workbench->projects().create(place());
    }
    ~ImportRoads() override { VKDatabaseVornMGR::getInstance()->close(); }

    static QString example(const QString& name) { return QDir(VORN_EXAMPLES).filePath(name); }
    void importFiles(Kind kind, const QStringList& paths) { workbench->imports().importFiles(kind, paths); }
    /// As who deletes the rows and drops the files once more.
    void importAnew(Kind kind, const QStringList& paths) {
        workbench->imports().bar(kind)->closeRequested();
        settle();
        importFiles(kind, paths);
    }
    QStringList warnings() const { return messages(MessageLevel::Warning); }
    QStringList informations() const { return messages(MessageLevel::Information); }

    TechDB::SampleTable whole(const QString& dataset, const QString& sample) {
        const auto* const well = project().getWell(dataset);
        if (well == nullptr) {
            return {};
        }
        for (const TechDB::SampleInfo& info : project().samples(well->key())) {
            if (info.name == sample) {
                return project().sampleTable(info.key);
            }
        }
        return {};
    }
};

TEST_F(ImportRoads, raw_files_end_as_grades_and_plots) {
    const QStringList names = {"good-clean-01.S00", "double-clean-01.S00", "flat-broad-01.S00"};
    QStringList paths;
    std::transform(names.begin(), names.end(), std::back_inserter(paths), &example);
    importFiles(Kind::SourceRock, paths + QStringList(example("good-clean-01.R00")));
    EXPECT_EQ(errors(), QStringList());
    ASSERT_EQ(project().analyses().size(), 3);
    ASSERT_EQ(project().datasets().size(), 1);
    EXPECT_EQ(project().datasets()[0].name, "good-clean-01.R00");

    QList<const VKObject2*> dragged;
    for (const QString& name : names) {
        dragged += project().getAnalysis(name);
    }
    workbench->qualityCheck().send(dragged);
    auto* const list = workbench->qualityCheck().list();
    ASSERT_EQ(list->topLevelItemCount(), 3);
    const auto colour = [list](const QString& name) {
        return list->findItems(name, Qt::MatchExactly).first()->background(0).color();
    };
    EXPECT_EQ(colour(names[0]), QColor(Qt::green));
    EXPECT_EQ(colour(names[1]), QColor("orange"));
    EXPECT_EQ(colour(names[2]), QColor(Qt::red));

    workbench->qualityCheck().bar()->slotEventOccured(ModuleObserver::dataEditorAction);
    const auto* const table = dynamic_cast<TableView*>(workspace().currentPage());
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->model()->rowCount(), 3);
    list->selectAll();
    settle();
    const auto* const plots = dynamic_cast<TechPlot::TEditorMatrix*>(workspace().currentPage());
    ASSERT_NE(plots, nullptr);
    EXPECT_EQ(plots->plots().size(), 3);
}

TEST_F(ImportRoads, a_table_goes_through_the_wizard_into_the_tree_and_a_table_view) {
    const ModalAnswers answers;
    importFiles(Kind::SourceRock, {example("tables/source-rock.xlsx")});
    EXPECT_EQ(errors(), QStringList());
    EXPECT_EQ(answers.asked().size(), 1);
    const QString dataset = "Source Rock-source-rock.xlsx";
    const TechDB::SampleTable table = whole(dataset, "Source Rock");
    ASSERT_EQ(table.columnNames.size(), 24) << "a column a sample";
    EXPECT_EQ(table.columnNames[0], "ALB-01");
    const int tmax = table.rowNames.indexOf("Tmax");
    ASSERT_GE(tmax, 0) << table.rowNames.join(", ").toStdString();
    EXPECT_EQ(table.cell(tmax, 0), QVariant(450.0));
    const int s1 = table.rowNames.indexOf("S1");
    ASSERT_GE(s1, 0) << table.rowNames.join(", ").toStdString();
    EXPECT_EQ(table.cell(s1, 5), QVariant("<0.02"));

    settle(); // the tree follows once the events at hand are done
    tree().findChild<QLineEdit*>()->setText(dataset);
    tree().findChild<QTreeView*>()->selectAll();
    tree().openAction()->trigger();
    EXPECT_NE(dynamic_cast<TableView*>(workspace().currentPage()), nullptr);
}

TEST_F(ImportRoads, a_second_import_asks_and_does_as_told) {
    const QString file = path("gas.xlsx");
    writeWorkbook(file, {"Sample", "C1 (%)"}, {{"A", 91.5}, {"B", 88.0}});
    {
        const ModalAnswers answers;
        importFiles(Kind::Gas, {file});
    }
    writeWorkbook(file, {"Sample", "C1 (%)"}, {{"A", 12.5}});
    {
        const ModalAnswers answers({"Cancel import"});
        importAnew(Kind::Gas, {file});
        EXPECT_EQ(answers.asked().last(), "Vorn Import module");
    }
    EXPECT_EQ(whole("Gas data-gas.xlsx", "Gas data").columnNames, QStringList({"A", "B"})) << "as it was";
    ASSERT_EQ(errors().size(), 1);
    EXPECT_EQ(errors()[0], "The import of the dataset Gas data-gas.xlsx has been canceled by the user");
    {
        const ModalAnswers answers({"Overwrite"});
        importAnew(Kind::Gas, {file});
    }
    EXPECT_EQ(whole("Gas data-gas.xlsx", "Gas data").columnNames, QStringList("A"));
    EXPECT_EQ(project().datasets().size(), 1);
}

TEST_F(ImportRoads, unknown_columns_become_parameters_once) {
    const QString file = path("custom.xlsx");
    writeWorkbook(file, {"Sample", "Pr/Ph", "Gammacerane index", "TOC (wt%)"}, {{"A", 0.8, 0.2, 3.5}});
    const ModalAnswers answers({"Overwrite"});
    importFiles(Kind::Custom, {file});
    EXPECT_TRUE(informations().contains("Parameter(s) Pr/Ph, Gammacerane index were(was) "
                                        "successfully added to  Vorn database"))
        << informations().join("\n").toStdString();
    EXPECT_EQ(warnings(), QStringList());
    importAnew(Kind::Custom, {file});
    EXPECT_TRUE(warnings().contains("Parameter(s) Pr/Ph, Gammacerane index already exist(s) "
                                    "in Vorn database"))
        << warnings().join("\n").toStdString();
}

TEST_F(ImportRoads, raw_files_of_one_name_are_both_kept_unless_they_hold_the_same_curve) {
    const auto copied = [this](const QString& place, const QString& source) {
        QDir(path({})).mkpath(place);
        const QString target = path(place + "/X.S00");
        EXPECT_TRUE(QFile::copy(example(source), target));
        return target;
    };
    const QString one = copied("one", "good-clean-01.S00");
    const QString other = copied("other", "double-clean-01.S00");
    const QString same = copied("same", "good-clean-01.S00");
    importFiles(Kind::SourceRock, {one});
    importFiles(Kind::SourceRock, {other});
    importFiles(Kind::SourceRock, {same});
    EXPECT_EQ(errors(), QStringList());
    ASSERT_EQ(project().analyses().size(), 2);
    EXPECT_EQ(project().analyses()[0].name, "X.S00");
    EXPECT_EQ(project().analyses()[1].name, "X.S00 (2)");
}

TEST_F(ImportRoads, what_can_not_be_imported_is_named_and_the_rest_comes_in) {
    QFile junk(path("junk.xlsx"));
    ASSERT_TRUE(junk.open(QIODevice::WriteOnly));
    junk.write("no workbook");
    junk.close();
    QFile bytes(example("tables/gas.xlsx"));
    ASSERT_TRUE(bytes.open(QIODevice::ReadOnly));
    QFile half(path("half.xlsx"));
    ASSERT_TRUE(half.open(QIODevice::WriteOnly));
    half.write(bytes.read(bytes.size() / 2));
    half.close();
    const ModalAnswers answers;
    importFiles(Kind::SourceRock,
                {junk.fileName(), half.fileName(), path("gone.S00"), example("good-clean-01.S00")});
    EXPECT_EQ(project().analyses().size(), 1);
    EXPECT_TRUE(project().datasets().isEmpty());
    const QString told = errors().join("\n");
    for (const char* const name : {"junk.xlsx", "half.xlsx", "gone.S00"}) {
        EXPECT_TRUE(told.contains(name)) << name << " in " << told.toStdString();
    }
}

#pragma once

#include "ImportFixture.h"
#include "ProjectTree.h"
#include "VKObject2Analysis.h"

#include <QLineEdit>
#include <QTreeView>

#include <algorithm>
#include <memory>

/// The source-rock module, which takes tables and raw files, as who sees its list and the log.
class FailuresFixture : public ImportTest {
protected:
    QString rawFile(const QString& name) const { return made(name, bytesOf(example("good-clean-01.S00"))); }
    QString table(const QString& name, double value = 1.5) const {
        writeWorkbook(path(name), {"Sample", "TOC (wt%)"}, {{"A", value}, {"B", value}});
        return path(name);
    }

    void drop(const QStringList& paths) { emit module->editor()->filesDropped(paths); }
    void pressImport() {
        const ModalAnswers answers({"Overwrite"});
        emit module->editor()->importAsked();
    }
    void import(const QStringList& paths) {
        drop(paths);
        pressImport();
    }
    /// With an empty list of files, and with an empty log.
    void openAnew() {
        module = std::make_unique<OpenModule>();
        workbench->log().clear();
    }

    /// -1 if the file isn't listed.
    int status(const QString& path) { return module->model().value(path, -1); }
    int count(int code, const QStringList& paths) {
        return static_cast<int>(std::count_if(paths.begin(), paths.end(),
                                              [&](const QString& path) { return status(path) == code; }));
    }

    /// Whether all of a file that the test made is in the project; part of it fails the test.
    bool holds(const QString& path) {
        const QString name = QFileInfo(path).fileName();
        if (name.endsWith(".S00")) {
            const VKObject2Analysis* const analysis = project().getAnalysis(name);
            EXPECT_TRUE(analysis == nullptr || project().curve(analysis->key()).dataSize() > 1000);
            return analysis != nullptr;
        }
        const bool results = name.endsWith(".R00");
        const VKObject2Well* const well = project().getWell(results ? name : "Source Rock-" + name);
        EXPECT_TRUE(well == nullptr || project().samples(well->key()).size() == (results ? 1 : 3)) << name;
        return well != nullptr;
    }

    QString told() const { return errors().join("\n"); }
    void expectTold(const QStringList& parts) const {
        for (const QString& part : parts) {
            EXPECT_TRUE(told().contains(part)) << part << " in " << told();
        }
    }
    void expectWholeProject() {
        EXPECT_EQ(TechDB::TDatabase::open(project().path())->problems(), QStringList());
    }

    /// In the same window, whose title and tree follow.
    void expectThatAnOrdinaryImportWorks() {
        expectWholeProject();
        openAnew();
        const QStringList paths = {rawFile("ordinary.S00"), table("ordinary.xlsx")};
        import(paths);
        EXPECT_EQ(told(), "");
        EXPECT_EQ(count(VornCtrl::ImportDone, paths), 2);
        EXPECT_TRUE(holds(paths[0]) && holds(paths[1]));
        EXPECT_EQ(workbench->window().windowTitle(), "lab – Vorn workbench");
        settle(); // the tree follows once the events at hand are done
        tree().findChild<QLineEdit*>()->setText("ordinary");
        tree().findChild<QTreeView*>()->selectAll();
        EXPECT_EQ(tree().selectedObjects().size(), 2);
    }

    std::unique_ptr<OpenModule> module = std::make_unique<OpenModule>();
};

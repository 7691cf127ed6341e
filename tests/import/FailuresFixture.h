#pragma once

#include "ImportModules.h"
#include "ModalAnswers.h"
#include "ProjectTree.h"
#include "TDatabase.h"
#include "VKDatabaseVornMGR.h"
#include "VKObject2Analysis.h"
#include "VKObject2Well.h"
#include "VornCtrl.h"
#include "VornEditor.h"
#include "WorkbenchFixture.h"
#include "WorkbookFile.h"

#include <QDir>
#include <QFile>
#include <QIcon>
#include <QLineEdit>
#include <QTreeView>
#include <QTreeWidget>

#include <memory>
#include <ostream>

/// How the test library shows a text that differs.
inline void PrintTo(const QString& text, std::ostream* out) {
    *out << text.toStdString();
}

/// The workbench with an empty project, and the source-rock module, which takes tables and raw files, as who
/// sees its list and the log.
class FailuresFixture : public WorkbenchFixture {
protected:
    static constexpr auto kind = ImportModules::Kind::SourceRock;

    FailuresFixture() {
        VKDatabaseVornMGR::getInstance()->setPlace(path("parameters.sqlite"));
        workbench->projects().create(path("lab.vornproj"));
    }
    ~FailuresFixture() override { VKDatabaseVornMGR::getInstance()->close(); }

    static QByteArray bytesOf(const QString& file) {
        QFile source(file);
        EXPECT_TRUE(source.open(QIODevice::ReadOnly)) << file.toStdString();
        return source.readAll();
    }
    static QByteArray example(const QString& name) { return bytesOf(QDir(VORN_EXAMPLES).filePath(name)); }
    QString made(const QString& name, const QByteArray& bytes) const {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        return file.fileName();
    }
    QString rawFile(const QString& name) const { return made(name, example("good-clean-01.S00")); }
    QString table(const QString& name, double value = 1.5) const {
        writeWorkbook(path(name), {"Sample", "TOC (wt%)"}, {{"A", value}, {"B", value}});
        return path(name);
    }

    VornEditor& module() {
        workbench->imports().start(kind);
        return *dynamic_cast<VornEditor*>(workbench->imports().bar(kind));
    }
    void drop(const QStringList& paths) { emit module().filesDropped(paths); }
    void pressImport() {
        const ModalAnswers answers({"Overwrite"});
        emit module().importAsked();
    }
    void import(const QStringList& paths) {
        drop(paths);
        pressImport();
    }
    /// With its list of files.
    void closeModule() {
        emit module().closeRequested();
        settle();
    }

    /// The status that the list shows for a file; -1 if it isn't listed.
    int status(const QString& path) {
        const auto picture = [](const QIcon& icon) { return icon.pixmap(16).toImage(); };
        const QString pictures[] = {"toolbar/blue_plus", "workflow/action_32", "toolbar/close_project"};
        const auto* const tree = module().findChild<QTreeWidget*>();
        for (int row = 0; row < tree->topLevelItemCount(); ++row) {
            for (int code = 0; code < 3 && tree->topLevelItem(row)->text(3) == path; ++code) {
                const QIcon icon(QString(":/Ressources/png/%1.png").arg(pictures[code]));
                if (picture(tree->topLevelItem(row)->icon(0)) == picture(icon)) {
                    return code;
                }
            }
        }
        return -1;
    }
    int count(int code, const QStringList& paths) {
        int found = 0;
        for (const QString& path : paths) {
            found += status(path) == code ? 1 : 0;
        }
        return found;
    }

    /// Whether all of a file made by `rawFile` or `table` is in the project; part of it fails the test.
    bool holds(const QString& path) {
        const QString name = QFileInfo(path).fileName();
        if (name.endsWith(".S00")) {
            const VKObject2Analysis* const analysis = project().getAnalysis(name);
            EXPECT_TRUE(analysis == nullptr || project().curve(analysis->key()).dataSize() > 1000);
            return analysis != nullptr;
        }
        const VKObject2Well* const well = project().getWell("Source Rock-" + name);
        EXPECT_TRUE(well == nullptr || project().samples(well->key()).size() == 3) << name.toStdString();
        return well != nullptr;
    }

    /// Errors that came since the log was cleared, as one text.
    QString told() const { return errors().join("\n"); }
    void expectTold(const QStringList& parts) const {
        for (const QString& part : parts) {
            EXPECT_TRUE(told().contains(part)) << part.toStdString() << " in " << told().toStdString();
        }
    }
    void expectWholeProject() {
        EXPECT_EQ(TechDB::TDatabase::open(project().path())->problems(), QStringList());
    }

    /// In the same window, whose title and tree follow.
    void expectThatAnOrdinaryImportWorks() {
        expectWholeProject();
        closeModule();
        workbench->log().clear();
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
};

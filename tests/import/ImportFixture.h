#pragma once

#include "ApplicationInterface.h"
#include "GasDataEditor.h"
#include "MessageCollector.h"
#include "ModuleLauncherInterface.h"
#include "ProjectMgrInterface.h"
#include "RibbonInterface.h"
#include "TDatabase.h"
#include "VKDataModelGeneric.h"
#include "VKError.h"
#include "VKImportDatasetInterface.h"
#include "VKObject2Well.h"
#include "VKTreeWidget.h"
#include "VornCtrl.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTemporaryDir>
#include <QTranslator>

#include <functional>
#include <memory>
#include <ostream>

/// How the test library shows a text that differs.
inline void PrintTo(const QString& text, std::ostream* out) {
    *out << text.toStdString();
}

/// Takes the files whose names hold `accepted`, and tells what it was asked.
struct FakeReader : VKImportDatasetInterface {
    FakeReader(QString accepts, QStringList& sharedCalls)
        : accepted(std::move(accepts)), calls(sharedCalls) {}
    ~FakeReader() override { calls << "deleted " + accepted; }

    void prepareForProbe(bool probe) override { calls << (probe ? "probe " : "no probe ") + accepted; }
    bool acceptsFile(TFileBuffer&, const QString& path, QString&) override { return path.contains(accepted); }
    void setSource(const QString&, const QString&, const QString&, TFileBuffer*) override {}
    QAbstractItemModel* importedModel() override { return nullptr; }

    QString accepted;
    QStringList& calls;
};

/// A module whose readers and whose import of a table are the test's.
class TestCtrl : public VornCtrl {
public:
    TestCtrl() { m_moduleLabel = "Lab"; }

    using VornCtrl::createTemplateDataset;
    using VornCtrl::editor;
    using VornCtrl::importFiles;
    using VornCtrl::model;
    using VornCtrl::moveIDColumnAtStart;
    using VornCtrl::saveDatasets;
    using VornCtrl::setFirstColAsHeader;
    using VornCtrl::updateFileStatus;

    std::function<QList<VKImportInterface*>()> readers;
    std::function<void(VKImportDatasetInterface*, const QString&)> onTable;

protected:
    VornEditor* initEditor() override { return new GasDataEditor(m_moduleLabel, model()); }
    AsciiImportWizardStrategy* getStrategy() override { return nullptr; }
    void retrieveDLLImport(VKImportCtrl&, QList<VKImportInterface*>& interfaces) override {
        interfaces = readers();
    }
    using VornCtrl::import;
    void import(VKImportDatasetInterface* reader, const QString& path) override { onTable(reader, path); }
};

/// The host as far as import modules reach it.
struct FakeHost : ApplicationInterface, ModuleLauncherInterface, ProjectMgrInterface, RibbonInterface {
    QWidget* mainWidget() const override { return nullptr; }
    void notifyProjectChanged(int change) override { notified += change; }
    void showHelp(int) override {}
    void closeModule(TModuleCtrl* module) override { closed = module; }
    void openDataEditor(VKDataModel*) override {}
    TechDB::TDatabase* projectDatabase() const override { return project; }
    VKDatabaseImport* importDatabase() const override { return imports; }
    void addModuleBar(VKRibbonModuleBar* bar, bool, bool) override { bars += bar; }
    void removeModuleBar(VKRibbonModuleBar* bar) override {
        bars.removeAll(bar);
        if (onRemoved) {
            onRemoved();
        }
    }

    QList<int> notified;
    TModuleCtrl* closed = nullptr;
    TechDB::TDatabase* project = nullptr;
    VKDatabaseImport* imports = nullptr;
    QList<VKRibbonModuleBar*> bars;
    std::function<void()> onRemoved;
};

/// French as the application gives it: the disambiguation.
struct FrenchTexts : QTranslator {
    FrenchTexts() { QCoreApplication::installTranslator(this); }
    QString translate(const char*, const char*, const char* disambiguation, int) const override {
        return QString::fromUtf8(disambiguation);
    }
    bool isEmpty() const override { return false; }
};

class ImportTest : public testing::Test {
protected:
    ImportTest() : project(TechDB::TDatabase::create(folder.filePath("lab.vornproj"))) {
        MessageLoggerInterface::setDefaultLogger(&log);
        host.project = project.get();
    }

    static VornEditor& editorOf(TestCtrl& module) { return *module.editor(); }

    /// The text of the VKError; empty if there was none.
    template <class Operation>
    static QString failure(const Operation& operation) {
        try {
            operation();
        } catch (const VKError& error) {
            EXPECT_TRUE(error.place().isNull() && error.advice().isNull());
            return error.message();
        }
        return {};
    }

    QStringList informations() const { return log.messages(MessageLevel::Information); }
    QStringList errors() const { return log.messages(MessageLevel::Error); }

    QStringList sampleNames(const QString& dataset) const {
        QStringList names;
        const VKObject2Well* const well = project->getWell(dataset);
        if (well != nullptr) {
            for (const TechDB::SampleInfo& sample : project->samples(well->key())) {
                names += sample.name;
            }
        }
        return names;
    }
    TechDB::SampleTable sample(const QString& dataset, const QString& name) const {
        const qint64 well = project->getWell(dataset)->key();
        for (const TechDB::SampleInfo& sample : project->samples(well)) {
            if (sample.name == name) {
                return project->sampleTable(sample.key);
            }
        }
        return {};
    }

    const QTemporaryDir folder;
    MessageCollector log;
    const std::unique_ptr<TechDB::TDatabase> project;
    FakeHost host;
};

/// A table of the host with these columns, row by row.
inline void fill(VKDataModelGeneric& table, const QStringList& names, const QVector<QVariantList>& rows) {
    table.createEmpty(names.size(), rows.size());
    for (int column = 0; column < names.size(); ++column) {
        table.setHeaderData(column, Qt::Horizontal, names[column]);
        for (int row = 0; row < rows.size(); ++row) {
            table.setData(table.index(row, column), rows[row].value(column));
        }
    }
}

#pragma once

#include "ApplicationInterface.h"
#include "AsciiImportWizardStrategySR.h"
#include "GasDataEditor.h"
#include "MessageCollector.h"
#include "ModuleLauncherInterface.h"
#include "ProjectMgrInterface.h"
#include "RibbonInterface.h"
#include "ServerDatabase.h"
#include "TDatabase.h"
#include "VKDataModelGeneric.h"
#include "VKError.h"
#include "VKImportInterface.h"
#include "VKObject2Well.h"
#include "VornCtrl.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <QTranslator>

#include <functional>

/// A module whose readers are the test's, and so is what is done with a table if `onTable` is set.
struct TestCtrl : VornCtrl {
    using VornCtrl::editor, VornCtrl::importFiles, VornCtrl::model, VornCtrl::import;
    using VornCtrl::moveIDColumnAtStart, VornCtrl::saveDatasets, VornCtrl::setFirstColAsHeader;

    TestCtrl() { m_moduleLabel = "Lab"; }
    VornEditor* initEditor() override { return new GasDataEditor(m_moduleLabel, model()); }
    AsciiImportWizardStrategy* getStrategy() override { return new AsciiImportWizardStrategySR; }
    void retrieveDLLImport(VKImportCtrl&, QList<VKImportInterface*>& list) override { list = readers(); }
    void import(VKImportDatasetInterface* reader, const QString& path) override {
        onTable ? onTable(reader, path) : VornCtrl::import(reader, path);
    }
    void specificProcess(const QAbstractItemModel* model) override { processedRows = model->rowCount(); }

    std::function<QList<VKImportInterface*>()> readers;
    std::function<void(VKImportDatasetInterface*, const QString&)> onTable;
    int processedRows = -1;
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
    void addModuleBar(VKRibbonModuleBar* bar, bool, bool) override { titles += bar->title(); }
    void removeModuleBar(VKRibbonModuleBar* bar) override { onRemoved(dynamic_cast<VornEditor*>(bar)); }

    QList<int> notified;
    QStringList titles;
    TModuleCtrl* closed = nullptr;
    TechDB::TDatabase* project = nullptr;
    VKDatabaseImport* imports = nullptr;
    std::function<void(VornEditor*)> onRemoved = [](VornEditor*) {};
};

/// Gives each text in both languages at once, "English|French".
struct BothLanguages : QTranslator {
    BothLanguages() { QCoreApplication::installTranslator(this); }
    QString translate(const char*, const char* source, const char* french, int) const override {
        return french == nullptr ? QString() : QString(source) + '|' + french;
    }
    bool isEmpty() const override { return false; }
};

class ImportTest : public testing::Test {
protected:
    ImportTest()
        : project(TechDB::TDatabase::create(server ? server->address() : folder.filePath("lab.vornproj"))) {
        MessageLoggerInterface::setDefaultLogger(&log);
        host.project = project.get();
    }

    /// The text of the VKError; empty if there was none.
    static QString failure(const std::function<void()>& operation) {
        try {
            operation();
        } catch (const VKError& error) {
            return error.text();
        }
        return {};
    }
    QStringList informations() const { return log.messages(MessageLevel::Information); }
    QStringList errors() const { return log.messages(MessageLevel::Error); }

    /// The sample's table; without a name, the names of all as its rows.
    TechDB::SampleTable sample(const QString& dataset, const QString& name = {}) const {
        TechDB::SampleTable names;
        for (const TechDB::SampleInfo& each : project->samples(project->getWell(dataset)->key())) {
            names.rowNames += each.name;
            if (each.name == name) {
                return project->sampleTable(each.key);
            }
        }
        return names;
    }

    const QTemporaryDir folder;
    const std::unique_ptr<ServerDatabase> server =
        ServerDatabase::isThere() ? std::make_unique<ServerDatabase>() : nullptr;
    const BothLanguages translator;
    MessageCollector log;
    const std::unique_ptr<TechDB::TDatabase> project;
    FakeHost host;
};

/// Fills a table of the host with these columns, row by row.
inline void fill(VKDataModelGeneric& table, const QStringList& names, const QVector<QVariantList>& rows) {
    table.createEmpty(names.size(), rows.size());
    for (int column = 0; column < names.size(); ++column) {
        table.setHeaderData(column, Qt::Horizontal, names[column]);
        for (int row = 0; row < rows.size(); ++row) {
            table.setData(table.index(row, column), rows[row].value(column));
        }
    }
}

#pragma once

#include "ModalAnswers.h"
#include "SourceRockCtrl.h"
#include "TDatabase.h"
#include "VKDatabaseVornMGR.h"
#include "VKObject2Well.h"
#include "VornEditor.h"
#include "WorkbenchFixture.h"
#include "WorkbookFile.h"

#include <QDir>
#include <QFile>

#include <functional>
#include <ostream>

class VKImportInterface;

/// How the test library shows a text that differs.
inline std::ostream& operator<<(std::ostream& out, const QString& text) {
    return out << text.toStdString();
}
inline void PrintTo(const QString& text, std::ostream* out) {
    *out << text;
}

/// The source-rock module with its doors open: readers are the test's if it has some, and so is what happens
/// between a reader's word that it takes a file and its reading.
struct OpenModule : SourceRockCtrl {
    using VornCtrl::editor, VornCtrl::importFiles, VornCtrl::model;
    using VornCtrl::moveIDColumnAtStart, VornCtrl::saveDatasets, VornCtrl::setFirstColAsHeader;

    OpenModule() { createEditor(); }
    void retrieveDLLImport(VKImportCtrl& importCtrl, QList<VKImportInterface*>& list) override {
        if (readers) {
            list = readers();
        } else {
            SourceRockCtrl::retrieveDLLImport(importCtrl, list);
        }
    }
    void import(VKImportAnalysisInterface* reader, const QString& path) override {
        onAccepted(path);
        SourceRockCtrl::import(reader, path);
    }
    void import(VKImportDatasetInterface* reader, const QString& path) override {
        onAccepted(path);
        SourceRockCtrl::import(reader, path);
    }

    std::function<QList<VKImportInterface*>()> readers;
    std::function<void(const QString&)> onAccepted = [](const QString&) {};
};

/// The workbench with an empty project and a catalogue of parameters of its own.
class ImportTest : public WorkbenchFixture {
protected:
    ImportTest() {
        VKDatabaseVornMGR::getInstance()->setPlace(path("parameters.sqlite"));
        workbench->projects().create(place());
    }
    ~ImportTest() override { VKDatabaseVornMGR::getInstance()->close(); }

    static QString example(const QString& name) { return QDir(VORN_EXAMPLES).filePath(name); }
    static QByteArray bytesOf(const QString& file) {
        QFile source(file);
        EXPECT_TRUE(source.open(QIODevice::ReadOnly)) << file.toStdString();
        return source.readAll();
    }
    QString made(const QString& name, const QByteArray& bytes) const {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        return file.fileName();
    }

    /// The sample's table; without a name, the names of all as its rows.
    TechDB::SampleTable sample(const QString& dataset, const QString& name = {}) {
        TechDB::SampleTable names;
        const VKObject2Well* const well = project().getWell(dataset);
        EXPECT_NE(well, nullptr) << dataset.toStdString();
        for (const TechDB::SampleInfo& each : project().samples(well == nullptr ? -1 : well->key())) {
            names.rowNames += each.name;
            if (each.name == name) {
                return project().sampleTable(each.key);
            }
        }
        return names;
    }
    QStringList warnings() const { return messages(MessageLevel::Warning); }
    QStringList informations() const { return messages(MessageLevel::Information); }
};

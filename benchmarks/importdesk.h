#pragma once

#include "ImportModules.h"
#include "ModalAnswers.h"
#include "TDatabase.h"
#include "VKDatabaseVornMGR.h"
#include "Workbench.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <memory>
#include <stdexcept>
#include <utility>
#include <vector>

/// Puts off the removal to the end of the process: on some file systems new files take several times as long
/// where a thousand were deleted just before.
inline void keep(std::unique_ptr<QTemporaryDir> folder) {
    static std::vector<std::unique_ptr<QTemporaryDir>> kept;
    kept.push_back(std::move(folder));
}

/// The workbench on a screen, with an empty project and a catalogue of parameters of its own.
class Desk {
public:
    Desk() {
        VKDatabaseVornMGR::getInstance()->setPlace(m_folder->filePath("parameters.sqlite"));
        m_workbench.window().resize(1280, 800);
        m_workbench.window().show();
        m_workbench.projects().create(projectPath());
        settle();
    }
    ~Desk() { VKDatabaseVornMGR::getInstance()->close(); }

    QString projectPath() const { return m_folder->filePath("lab.vornproj"); }
    QString indexPath() const { return m_folder->filePath("lab.import/index.vornimport"); }
    QString curvePath(const QString& name) const {
        return m_folder->filePath(QString("lab.import/analyses/%1/%1.tcm").arg(name));
    }

    /// Until the window shows what came in.
    void import(ImportModules::Kind kind, const QStringList& paths) {
        const ModalAnswers answers;
        m_workbench.imports().importFiles(kind, paths);
        settle();
    }

    const TechDB::TDatabase& project() { return *m_workbench.projects().projectDatabase(); }
    void expectTable(int samples) {
        const auto datasets = project().datasets();
        expect(datasets.size() == 1 && datasets[0].sampleCount == samples + 1);
    }
    /// The last thing that is asked of it.
    void keepFiles() { keep(std::move(m_folder)); }
    void expectCurves(int count) { expect(project().analyses().size() == count); }

private:
    static void settle() {
        for (int pass = 0; pass < 3; ++pass) {
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QCoreApplication::processEvents();
        }
    }
    static void expect(bool complete) {
        if (!complete) {
            throw std::runtime_error("the import is not complete");
        }
    }

    std::unique_ptr<QTemporaryDir> m_folder = std::make_unique<QTemporaryDir>();
    Workbench m_workbench;
};

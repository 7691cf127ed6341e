#pragma once

#include "ProjectTree.h"
#include "ProjectTreeModel.h"
#include "ProjectView.h"
#include "TDatabase.h"
#include "VKError.h"
#include "VKObject2Analysis.h"
#include "VKObject2Well.h"

#include <QAbstractItemModelTester>
#include <QCoreApplication>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

/// A project tree on the screen, shown with a project of its own, and the failures that were reported.
class TreeTest : public testing::Test {
protected:
    TreeTest()
        : database(TechDB::TDatabase::create(path())),
          former(VKError::setHandler([this](const QString& text) { reported.append(text); })) {
        tree.resize(480, 640);
        tree.show();
        tree.activateWindow();
        tree.setProject(database.get());
        view().setFocus();
    }
    ~TreeTest() override {
        tree.setProject(nullptr);
        VKError::setHandler(former);
    }

    QString path() const { return folder.filePath("lab.vornproj"); }

    static const VKObject2Analysis* addTo(TechDB::TDatabase& project, const QString& name) {
        return project.addAnalysis(name, "pyrolysis", {{0, 1}, {0, 1}});
    }
    const VKObject2Analysis* add(const QString& name) { return addTo(*database, name); }
    const VKObject2Well* addDataset(const QString& name, const QStringList& samples) {
        const VKObject2Well* const well = database->addWell(name);
        for (const QString& sample : samples) {
            database->addSample(well->key(), sample, {{"row"}, {"column"}, {1.0}, {}});
        }
        return well;
    }
    void remove(const QString& name) { database->removeAnalysis(database->getAnalysis(name)->key()); }

    ProjectView& view() const { return *tree.findChild<ProjectView*>(); }
    QAbstractItemModel& shown() const { return *view().model(); }
    QLineEdit& filter() const { return *tree.findChild<QLineEdit*>(); }

    /// Every shown name from top to bottom, each level set in by a dot; reads all that wasn't read yet.
    QStringList names(const QModelIndex& parent = {}, const QString& indent = {}) const {
        QStringList list;
        if (parent.isValid()) {
            dynamic_cast<ProjectTreeModel&>(shown()).readRest(parent);
        } else {
            settle();
        }
        for (int row = 0; row < shown().rowCount(parent); ++row) {
            const QModelIndex index = shown().index(row, 0, parent);
            list.append(indent + index.data().toString());
            list.append(names(index, indent + '.'));
        }
        return list;
    }
    QModelIndex find(const QString& name) const {
        names();
        return shown()
            .match(shown().index(0, 0), Qt::DisplayRole, name, 1, Qt::MatchExactly | Qt::MatchRecursive)
            .value(0);
    }
    void select(const QStringList& wanted) {
        view().clearSelection();
        for (const QString& name : wanted) {
            view().selectionModel()->setCurrentIndex(find(name),
                                                     QItemSelectionModel::Select | QItemSelectionModel::Rows);
        }
    }
    QStringList selectedNames() const {
        QStringList list;
        for (const VKObject2* object : tree.selectedObjects()) {
            list.append(object->displayName());
        }
        return list;
    }
    static void settle() { QCoreApplication::processEvents(); }

    QTemporaryDir folder;
    QStringList reported;
    std::unique_ptr<TechDB::TDatabase> database;
    VKError::Handler former;
    ProjectTree tree;
    QAbstractItemModelTester tester{&shown(), QAbstractItemModelTester::FailureReportingMode::Warning};
};

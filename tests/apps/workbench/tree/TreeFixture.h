#pragma once

#include "ProjectTree.h"
#include "ProjectTreeModel.h"
#include "TDatabase.h"
#include "VKError.h"
#include "VKObject2Analysis.h"
#include "VKObject2Well.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QCoreApplication>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>

#include <gtest/gtest.h>

/// A project tree on the screen, shown with a project of its own, and the failures that were reported.
class TreeTest : public testing::Test {
protected:
    TreeTest()
        : database(TechDB::TDatabase::create(path())),
          former(VKError::setHandler([this](const QString& text) { reported.append(text); })) {
        tree.resize(480, 640);
        tree.show();
        tree.setProject(database.get());
    }
    ~TreeTest() override {
        tree.setProject(nullptr);
        VKError::setHandler(former);
    }

    QString path() const { return folder.filePath(QStringLiteral("lab.vornproj")); }

    static const VKObject2Analysis* addAnalysis(TechDB::TDatabase& project, const QString& name,
                                                int points = 2) {
        std::vector<float> x;
        for (int i = 0; i < points; ++i) {
            x.push_back(static_cast<float>(i));
        }
        return project.addAnalysis(name, QStringLiteral("pyrolysis"), TAnalysisData(x, x));
    }
    const VKObject2Analysis* add(const QString& name, int points = 2) {
        return addAnalysis(*database, name, points);
    }
    const VKObject2Well* addDataset(const QString& name, const QStringList& samples) {
        const VKObject2Well* const well = database->addWell(name);
        for (const QString& sample : samples) {
            database->addSample(well->key(), sample, {{"row"}, {"column"}, {1.0}, {}});
        }
        return well;
    }

    QTreeView& view() const { return *tree.findChild<QTreeView*>(); }
    QAbstractItemModel& shown() const { return *view().model(); }
    QLineEdit& filter() const { return *tree.findChild<QLineEdit*>(); }

    /// Every shown name from top to bottom, each level set in by a dot; reads all that wasn't read yet.
    QStringList names(const QModelIndex& parent = {}, const QString& indent = {}) const {
        QStringList list;
        if (parent.isValid()) {
            dynamic_cast<ProjectTreeModel&>(shown()).readRest(parent);
        }
        for (int row = 0; row < shown().rowCount(parent); ++row) {
            const QModelIndex index = shown().index(row, 0, parent);
            list.append(indent + index.data().toString());
            list.append(names(index, indent + QLatin1Char('.')));
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
};

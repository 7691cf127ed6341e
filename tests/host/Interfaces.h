#pragma once

#include "ApplicationInterface.h"
#include "ProjectMgrInterface.h"
#include "RibbonInterface.h"
#include "WorkspaceInterface.h"

#include <QList>
#include <QVector>

/// What the application offers to modules, for tests: each takes down what it is asked for.
struct Application : ApplicationInterface {
    QWidget* mainWidget() const override { return nullptr; }
    void notifyProjectChanged(int) override {}
    void showHelp(int helpId) override { pages += helpId; }

    QList<int> pages;
};

struct Project : ProjectMgrInterface {
    TechDB::TDatabase* projectDatabase() const override { return database; }
    VKDatabaseImport* importDatabase() const override { return nullptr; }

    TechDB::TDatabase* database = nullptr;
};

struct Ribbon : RibbonInterface {
    void addModuleBar(VKRibbonModuleBar*, bool, bool) override {}
    void removeModuleBar(VKRibbonModuleBar*) override {}
};

struct Workspace : WorkspaceInterface {
    void showEditor(QWidget* editor) override { shown.append(editor); }
    void closeEditor(QWidget* editor) override { shown.removeAll(editor); }
    void arrangeViewers(int) override {}

    QVector<QWidget*> shown;
};

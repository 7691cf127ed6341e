#pragma once

#include "ProjectMgrInterface.h"

#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>

/// The one open project. Remembers the projects that were opened last.
class ProjectMgr : public QObject, public ProjectMgrInterface {
    Q_OBJECT

public:
    ProjectMgr();
    ~ProjectMgr() override;

    TechDB::TDatabase* projectDatabase() const override;
    /// Lies in a folder beside the project ("lab.import" beside "lab.vornproj"), made when it is first asked
    /// for. Tried again with each call while it can't be.
    VKDatabaseImport* importDatabase() const override;

    /// Opens a project in the place of the present one, which stays open if that fails: throws VKError.
    /// Opening the one that is open does nothing.
    void open(const QString& path);
    /// Makes a new project and opens it; what lies under the path is replaced once the new one is whole.
    void create(const QString& path);
    /// The same with `fill` putting something in before anyone sees it.
    void create(const QString& path, const std::function<void(TechDB::TDatabase&)>& fill);
    void close();

    /// The paths of the projects opened last, the latest first; those that are gone left out.
    static QStringList recentProjects();

    static QString fileSuffix() { return QStringLiteral("vornproj"); }

signals:
    /// The project is about to close, and its objects with it.
    void closing();
    /// Another project is open, or with null none.
    void opened(TechDB::TDatabase* project);

private:
    static void remember(const QString& path);

    std::unique_ptr<TechDB::TDatabase> m_project;
    mutable std::unique_ptr<VKDatabaseImport> m_import;
};

#pragma once

class VKDatabaseImport;

namespace TechDB {
class TDatabase;
}

/// The open project and its databases. Both stay the project's, and close with it.
///
/// Implemented by the application, and registered for as long as the implementation lives. For the
/// interface thread only.
class ProjectMgrInterface {
public:
    virtual ~ProjectMgrInterface();
    ProjectMgrInterface(const ProjectMgrInterface&) = delete;
    ProjectMgrInterface& operator=(const ProjectMgrInterface&) = delete;

    /// The registered implementation, or null. Ask each time: it may come and go.
    static ProjectMgrInterface* returnMe();

    /// Null while no project is open.
    virtual TechDB::TDatabase* projectDatabase() const = 0;

    /// Where imported files are put before they enter the project; null while no project is open, and where
    /// it can't be opened, which is an Error on the log.
    virtual VKDatabaseImport* importDatabase() const = 0;

protected:
    /// Registers this object. A second one while the first lives is refused with a warning.
    ProjectMgrInterface();
};

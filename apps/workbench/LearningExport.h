#pragma once

#include <QString>

class VKRibbonModuleBar;
class Workspace;

/// Calls a quality check's export for machine learning, which the module offers by name alone and which
/// says nothing of its success.
class LearningExport {
public:
    /// Has the file written into the folder of the open project, tells on the log where it went, and shows
    /// it in the workspace. A file that did not come about is an Error on the log. Gives the path; null
    /// where there is no file.
    static QString run(VKRibbonModuleBar& bar, Workspace& workspace);
};

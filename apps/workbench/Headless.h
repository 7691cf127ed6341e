#pragma once

#include <QString>

class Workbench;

/// A run without a user: drops all analyses of the open project on the quality check, prints the grades as a
/// table on standard output, and writes a picture of the window and of the plots into a folder.
class Headless {
public:
    /// 0, or 1 with the cause on standard error.
    static int run(Workbench& workbench, const QString& folder);
};

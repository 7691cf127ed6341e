#pragma once

#include <QString>

class Workbench;

/// A run without a user: drops all analyses of the open project on the quality check, prints the grades as a
/// table on standard output, and writes into a folder pictures of the window (with the table, with the plots)
/// and of the first plots, and a PDF of all plots.
class Headless {
public:
    /// 0, or 1 with the cause on standard error.
    static int run(Workbench& workbench, const QString& folder);
};

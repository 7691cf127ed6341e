#pragma once

namespace TechDB {
class TDatabase;
}

/// The curves that come with the application, so that a first start has something to show.
class ExampleProject {
public:
    /// Stores them in the project, each as an analysis under its file's name. What can't be read or stored
    /// is an Error on the log; the others are stored.
    static void fill(TechDB::TDatabase& project);
};

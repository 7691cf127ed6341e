#include "ImportSteps.h"
#include "MessageCollector.h"

#include <QCoreApplication>

#include <cstdio>
#include <iostream>

// writer FOLDER COUNT HEIGHT: imports COUNT curves, each another one, under one name into the import database
// and the project of a folder, and says a word after each.
int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    const QDir folder(argv[1]);
    MessageCollector log(&std::cerr);
    MessageLoggerInterface::setDefaultLogger(&log);
    const auto imports = VKDatabaseImport::open(folder.filePath("import"));
    const auto project = TechDB::TDatabase::open(folder.filePath("lab.vornproj"));
    for (int i = 0; i < std::atoi(argv[2]); ++i) {
        const std::vector<float> y{static_cast<float>(std::atoi(argv[3])), static_cast<float>(i), 0.0F};
        if (!imports->objectPush(project.get(), ImportSteps::imported(*imports, "X.S00", y))) {
            return 1;
        }
        std::puts("stored");
        std::fflush(stdout);
    }
    return 0;
}

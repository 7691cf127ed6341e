#include "MessageCollector.h"
#include "VKDatabaseImport.h"
#include "VKObject2Analysis.h"

#include <QCoreApplication>
#include <QDir>

#include <cstdio>
#include <iostream>
#include <vector>

// writer FOLDER PROJECT NAME COUNT HEIGHT: imports COUNT curves, each another one, under one name and takes
// them into the project; says a word after each.
int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    MessageCollector log(&std::cerr);
    MessageLoggerInterface::setDefaultLogger(&log);
    const auto imports = VKDatabaseImport::open(arguments.value(1));
    const auto project = TechDB::TDatabase::open(arguments.value(2));
    const QString base = imports->rootFolder() + "/analyses/";
    std::vector<float> x{0.0F, 1.0F, 2.0F};
    for (int i = 0; i < arguments.value(4).toInt(); ++i) {
        std::vector<float> y{arguments.value(5).toFloat(), static_cast<float>(i), 0.0F};
        QString name = arguments.value(3);
        const bool stored = imports->addNewAnalysisPath(name, false) &&
                            imports->writeAnalysisFile(base + name + '/' + name + ".tcm",
                                                       {x.data(), y.data()}, 3, 0, 1, "type", nullptr) &&
                            imports->analysisObjectSave(name) &&
                            imports->objectPush(project.get(), imports->getAnalysis(name));
        if (!stored) {
            return 1;
        }
        std::puts("stored");
        std::fflush(stdout);
    }
    return 0;
}

#include "Application.h"
#include "ExampleProject.h"
#include "Headless.h"
#include "LanguageSwitch.h"
#include "TavrelStyle.h"
#include "VKError.h"
#include "Workbench.h"

#include <QCommandLineParser>
#include <QDir>

namespace {

struct Options {
    QCommandLineParser parser;
    QCommandLineOption qualityCheck{"quality-check", "Start with the quality check open."};
    QCommandLineOption headless{"headless",
                                "Grade the example curves, write pictures into <folder> and quit.", "folder"};

    void read(const QCoreApplication& application) {
        parser.setApplicationDescription("Imports and grades pyrolysis curves.");
        parser.addHelpOption();
        parser.addVersionOption();
        parser.addOption(qualityCheck);
        parser.addOption(headless);
        parser.addPositionalArgument("project", "The project to open; without one, that of the last time.",
                                     "[project]");
        parser.process(application);
    }
};

/// In a project of its own, so that the user's stays as it is.
int runHeadless(Workbench& workbench, const QString& folder) {
    QDir().mkpath(folder);
    try {
        workbench.projects().create(QDir(folder).filePath("example." + ProjectMgr::fileSuffix()),
                                    &ExampleProject::fill);
    } catch (const VKError& error) {
        VKError::dispatchError(error);
        return 1;
    }
    workbench.window().show();
    return Headless::run(workbench, folder);
}

} // namespace

int main(int argc, char** argv) {
    TavrelStyle::prepareApplication();
    Application application(argc, argv);
    QCoreApplication::setOrganizationName("vorn");
    QCoreApplication::setApplicationName("workbench");
    QCoreApplication::setApplicationVersion(VORN_VERSION);
    QApplication::setStyle(new TavrelStyle);
    Options options;
    options.read(application);

    Workbench workbench;
    if (options.parser.isSet(options.headless)) {
        return runHeadless(workbench, options.parser.value(options.headless));
    }
    workbench.language().choose(LanguageSwitch::remembered());
    const QStringList projects = options.parser.positionalArguments();
    if (projects.isEmpty()) {
        workbench.projectCommands().openAtStart();
    } else {
        workbench.projectCommands().openProject(projects.first());
    }
    if (options.parser.isSet(options.qualityCheck)) {
        workbench.qualityCheck().start();
    }
    workbench.window().show();
    return QApplication::exec();
}

#include "Application.h"
#include "Headless.h"
#include "LanguageSwitch.h"
#include "LookSwitch.h"
#include "TavrelStyle.h"
#include "VKDatabaseVornMGR.h"
#include "VKError.h"
#include "Workbench.h"

#include <QCommandLineParser>
#include <QDir>
#include <QGuiApplication>
#include <QIcon>
#include <QSettings>

namespace {

struct Options {
    QCommandLineParser parser;
    QCommandLineOption qualityCheck{"quality-check", "Start with the quality check open."};
    QCommandLineOption example{"example", "Open the project with the example curves."};
    QCommandLineOption headless{
        "headless", "Import and grade the examples, write pictures into <folder> and quit.", "folder"};
    QCommandLineOption language{"language", "Speak en or fr.", "language"};
    QCommandLineOption look{"look", "Be light or dark.", "look"};

    void read(const QCoreApplication& application) {
        parser.setApplicationDescription("Imports and grades pyrolysis curves.");
        parser.addHelpOption();
        parser.addVersionOption();
        parser.addOptions({qualityCheck, example, headless, language, look});
        parser.addPositionalArgument("project", "The project to open; without one, that of the last time.",
                                     "[project]");
        parser.process(application);
    }
};

/// What was asked for, else what was chosen the last time.
void dress(Workbench& workbench, const Options& options) {
    using Language = LanguageSwitch::Language;
    const QString language = options.parser.value(options.language);
    if (!language.isEmpty()) {
        workbench.language().choose(language == QLatin1String("fr") ? Language::French : Language::English);
    } else {
        workbench.language().choose(LanguageSwitch::remembered());
    }
    const QString look = options.parser.value(options.look);
    if (!look.isEmpty()) {
        workbench.look().choose(look == QLatin1String("dark") ? LookSwitch::Scheme::Dark
                                                              : LookSwitch::Scheme::Light);
    } else {
        workbench.look().choose(LookSwitch::remembered());
    }
}

/// In a project of its own, so that the user's stays as it is.
int runHeadless(Workbench& workbench, const QString& folder) {
    QDir().mkpath(folder);
    VKDatabaseVornMGR::getInstance()->setPlace(QDir(folder).filePath("parameters.vorncatalogue"));
    try {
        workbench.projects().create(QDir(folder).filePath("example." + ProjectMgr::fileSuffix()));
    } catch (const VKError& error) {
        VKError::dispatchError(error);
        return 1;
    }
    workbench.window().show();
    return Headless::run(workbench, folder);
}

int runWindow(Workbench& workbench, const Options& options) {
    const QStringList projects = options.parser.positionalArguments();
    if (options.parser.isSet(options.example)) {
        workbench.projectCommands().openExample();
    } else if (projects.isEmpty()) {
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

} // namespace

int main(int argc, char** argv) {
    TavrelStyle::prepareApplication();
    Application application(argc, argv);
    QCoreApplication::setOrganizationName("vorn");
    QCoreApplication::setApplicationName("workbench");
    QCoreApplication::setApplicationVersion(VORN_VERSION);
    // The entry in the desktop's menu that an installation adds; windows have its icon.
    QGuiApplication::setDesktopFileName(QStringLiteral("vorn-workbench"));
    QGuiApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("vorn-workbench")));
    QApplication::setStyle(new TavrelStyle);
    if (QGuiApplication::platformName() == QLatin1String("offscreen")) {
        QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 10)); // no desktop chooses one there
    }
    Options options;
    options.read(application);

    const QString folder = options.parser.value(options.headless);
    if (!folder.isEmpty()) {
        // What the user chose for himself is neither read nor changed.
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QDir(folder).filePath("settings"));
    }
    Workbench workbench;
    dress(workbench, options);
    return folder.isEmpty() ? runWindow(workbench, options) : runHeadless(workbench, folder);
}

#include "ExpectedWarning.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLocale>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/lsan_interface.h>
#endif

namespace {

// Before the application object goes: the platform then leaves behind what belongs to its screen and windows.
void checkForLeaks() {
#if defined(__SANITIZE_ADDRESS__)
    __lsan_do_leak_check();
#endif
}

} // namespace

// One application object for all tests of a program, without a display and without the user's settings.
int main(int argc, char* argv[]) {
    testing::InitGoogleTest(&argc, argv);
    const QTemporaryDir runtime;
    if (!qEnvironmentVariableIsSet("XDG_RUNTIME_DIR")) {
        qputenv("XDG_RUNTIME_DIR", runtime.path().toLocal8Bit()); // Qt warns without one
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QStandardPaths::setTestModeEnabled(true);
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, runtime.path());
    QCoreApplication::setOrganizationName("vorn-test");
    QLocale::setDefault(QLocale::c());
    const QApplication application(argc, argv);
    ExpectedWarning::installGuard();
    const int result = RUN_ALL_TESTS();
    checkForLeaks();
    return result;
}

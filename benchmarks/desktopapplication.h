#pragma once

#include "TavrelStyle.h"

#include <QApplication>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>

/// The application object of a benchmark that shows windows: on the offscreen platform, in the project's
/// style, with settings of its own.
class DesktopApplication {
public:
    DesktopApplication(int& argc, char** argv) : m_application(prepared(argc), argv) {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settings.path());
        QCoreApplication::setOrganizationName("vorn-benchmark");
        QApplication::setStyle(new TavrelStyle);
    }

private:
    /// What has to be settled before there is an application object.
    static int& prepared(int& argc) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        QStandardPaths::setTestModeEnabled(true);
        TavrelStyle::prepareApplication();
        return argc;
    }

    QApplication m_application;
    const QTemporaryDir m_settings;
};

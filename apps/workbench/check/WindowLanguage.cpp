#include "WindowLanguage.h"

#include <QCoreApplication>

gradereport::Language windowLanguage() {
    const QString name = QCoreApplication::translate("WindowLanguage", "English", "French");
    return name == QLatin1String("French") ? gradereport::Language::french : gradereport::Language::english;
}

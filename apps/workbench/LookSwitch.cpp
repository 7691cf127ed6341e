#include "LookSwitch.h"

#include <QApplication>
#include <QSettings>

namespace {

const QString key = QStringLiteral("look");

} // namespace

LookSwitch::Scheme LookSwitch::remembered() {
    const QString chosen = QSettings().value(key).toString();
    if (chosen == QLatin1String("light")) {
        return Scheme::Light;
    }
    return chosen == QLatin1String("dark") ? Scheme::Dark : Scheme::Desktop;
}

void LookSwitch::choose(Scheme scheme) {
    switch (scheme) {
    case Scheme::Desktop:
        QSettings().remove(key);
        break;
    case Scheme::Light:
        QSettings().setValue(key, "light");
        break;
    case Scheme::Dark:
        QSettings().setValue(key, "dark");
        break;
    }
    m_scheme = scheme;
    QApplication::setStyle(new TavrelStyle(scheme));
    emit schemeChanged(); // NOLINT(clang-analyzer-cplusplus.NewDeleteLeaks) the application owns its style
}

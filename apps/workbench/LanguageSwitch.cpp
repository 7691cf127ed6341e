#include "LanguageSwitch.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QSettings>

namespace {

const QString key = QStringLiteral("language");

QLocale localeFor(LanguageSwitch::Language language) {
    const bool french = language == LanguageSwitch::Language::French;
    const QLocale system = QLocale::system();
    // The system's own country if it speaks the language.
    if (system.language() == (french ? QLocale::French : QLocale::English)) {
        return system;
    }
    return french ? QLocale(QLocale::French, QLocale::France)
                  : QLocale(QLocale::English, QLocale::UnitedKingdom);
}

} // namespace

LanguageSwitch::LanguageSwitch(QObject* parent) : QObject(parent) {
    QLocale::setDefault(localeFor(m_language));
}

LanguageSwitch::~LanguageSwitch() = default; // a translator takes itself out

LanguageSwitch::Language LanguageSwitch::remembered() {
    const QString chosen = QSettings().value(key).toString();
    const bool french =
        chosen.isEmpty() ? QLocale::system().language() == QLocale::French : chosen == QLatin1String("fr");
    return french ? Language::French : Language::English;
}

void LanguageSwitch::choose(Language language) {
    QSettings().setValue(key, language == Language::French ? "fr" : "en");
    if (language == m_language) {
        return;
    }
    m_language = language;
    QLocale::setDefault(localeFor(language));
    if (language == Language::French) {
        if (m_toolkit.load("qtbase_fr", QLibraryInfo::location(QLibraryInfo::TranslationsPath))) {
            QCoreApplication::installTranslator(&m_toolkit);
        }
        QCoreApplication::installTranslator(&m_own);
    } else {
        QCoreApplication::removeTranslator(&m_own);
        QCoreApplication::removeTranslator(&m_toolkit);
    }
    emit languageChanged();
}

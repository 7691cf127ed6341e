#pragma once

#include "BilingualTranslator.h"

#include <QObject>
#include <QTranslator>

/// The language of the application, switched at run time: texts, Qt's own dialogs, and the form of numbers
/// and dates. What is on screen hears of it as a LanguageChange event; a module keeps the language that it
/// was opened in.
class LanguageSwitch : public QObject {
    Q_OBJECT

public:
    enum class Language { English, French };

    explicit LanguageSwitch(QObject* parent = nullptr);
    ~LanguageSwitch() override;

    /// The language chosen last, or on the first start the system's.
    static Language remembered();

    Language language() const { return m_language; }
    void choose(Language language);

signals:
    void languageChanged();

private:
    Language m_language = Language::English;
    BilingualTranslator m_own;
    QTranslator m_toolkit;
};

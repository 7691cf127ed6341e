#pragma once

#include <QTranslator>

/// French for texts that carry both languages: English as the source and French as the disambiguation.
///
/// Installed while French is chosen, and last, so that it is asked first. Texts without a French form,
/// Qt's own among them, are left to the other translators.
class BilingualTranslator : public QTranslator {
    Q_OBJECT

public:
    using QTranslator::QTranslator;

    QString translate(const char* context, const char* sourceText, const char* disambiguation,
                      int n) const override;

    /// False, though there is no catalogue: an empty translator is never asked.
    bool isEmpty() const override { return false; }
};

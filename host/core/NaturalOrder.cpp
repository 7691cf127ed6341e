#include "NaturalOrder.h"

#include <QLocale>

QCollator NaturalOrder::collator() {
    const QLocale locale;
    // The plain C locale compares letter codes and knows no numbers.
    QCollator collator(locale.language() == QLocale::C ? QLocale(QLocale::English) : locale);
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    return collator;
}

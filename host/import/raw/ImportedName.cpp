#include "ImportedName.h"

#include <algorithm>

namespace ImportedName {

namespace {

constexpr int keptAtEnd = 16; // the extension, most often

bool isSeparator(QChar letter) {
    return letter == QLatin1Char('/') || letter == QLatin1Char('\\');
}

QString printable(const QString& name) {
    QString text = QString::fromUtf8(name.toUtf8()); // half a pair of surrogates becomes a question mark
    for (QChar& letter : text) {
        if (isSeparator(letter) || letter.category() == QChar::Other_Control) {
            letter = QLatin1Char('_');
        }
    }
    return text.trimmed();
}

QString shortened(const QString& name) {
    QString begin = name.left(maximumBytes);
    const QString end = QLatin1Char('_') + name.right(keptAtEnd);
    while ((begin + end).toUtf8().size() > maximumBytes) {
        begin.chop(1);
    }
    return printable(begin + end); // a cut may have halved a pair of surrogates
}

} // namespace

QString safe(const QString& name) {
    QString text = printable(name);
    if (text.toUtf8().size() > maximumBytes) {
        text = shortened(text);
    }
    const bool onlyDots = std::all_of(text.begin(), text.end(), [](QChar letter) { return letter == '.'; });
    return onlyDots ? QString(text.size() + 1, QLatin1Char('_')) : text;
}

} // namespace ImportedName

#include "NaturalOrder.h"

#include "NameText.h"

#include <QLocale>

#include <algorithm>
#include <cstring>

namespace {

/// In the order that most languages sort them. They become the letters from the blank on.
constexpr char marks[] = " _-,;:!?.'\"()[]{}@*/\\&#%`^+<=>|~$";
/// The number of digits of a number: A for none up to Y for 24; a Z for 25 more.
constexpr int digitsPerLetter = 25;
/// Below all that a key holds otherwise.
constexpr QChar beforeAccents(1);

void appendNumber(QString& key, const QString& name, int first, int end) {
    while (first < end && name.at(first).digitValue() == 0) {
        ++first;
    }
    const int digits = end - first;
    key += QString(digits / digitsPerLetter, QLatin1Char('Z'));
    key += QChar('A' + digits % digitsPerLetter);
    for (; first < end; ++first) {
        key += QChar('0' + name.at(first).digitValue());
    }
}

QChar comparable(QChar letter) {
    const char* const mark = letter.unicode() < 128 ? std::strchr(marks, letter.toLatin1()) : nullptr;
    return mark == nullptr ? letter : QChar(static_cast<int>(' ' + (mark - marks)));
}

QString comparable(const QString& name) {
    QString key;
    for (int place = 0; place < name.size();) {
        int end = place;
        while (end < name.size() && name.at(end).isDigit()) {
            ++end;
        }
        if (end > place) {
            appendNumber(key, name, place, end);
            place = end;
        } else {
            key += comparable(name.at(place++));
        }
    }
    return key;
}

} // namespace

QCollator NaturalOrder::collator() {
    const QLocale locale;
    // The plain C locale compares letter codes and knows no numbers.
    QCollator collator(locale.language() == QLocale::C ? QLocale(QLocale::English) : locale);
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    return collator;
}

QString NaturalOrder::key(const QString& name) {
    const QString whole = NameText::onOneLine(name).normalized(QString::NormalizationForm_KD).toCaseFolded();
    QString bare = whole;
    const auto isAccent = [](QChar letter) { return letter.category() == QChar::Mark_NonSpacing; };
    bare.truncate(static_cast<int>(std::remove_if(bare.begin(), bare.end(), isAccent) - bare.begin()));
    QString key = comparable(bare);
    if (bare.size() != whole.size()) {
        key += beforeAccents + comparable(whole);
    }
    key.truncate(maximumKeyLength);
    if (!key.isEmpty() && QChar(key.back()).isHighSurrogate()) {
        key.chop(1);
    }
    return key;
}

#include "TKnownProperty.h"

#include <QVector>

namespace {

constexpr uint Plus = '+';
constexpr uint Slash = '/';
constexpr uint Prime = '\'';

bool isDelta(uint character) {
    constexpr uint smallDelta = 0x03B4;
    constexpr uint increment = 0x2206; // many spreadsheets hold it in place of the Greek capital
    return character == smallDelta || character == increment;
}

/// Slashes that compatibility decomposition leaves as they are.
bool isSlash(uint character) {
    constexpr uint fractionSlash = 0x2044;
    constexpr uint divisionSlash = 0x2215;
    return character == Slash || character == fractionSlash || character == divisionSlash;
}

/// An apostrophe behind a digit is a prime: S3' is another quantity than S3.
bool isPrime(uint character, const QVector<uint>& before) {
    constexpr uint typographic = 0x2019;
    constexpr uint prime = 0x2032;
    return (character == Prime || character == typographic || character == prime) && !before.isEmpty() &&
           QChar::isNumber(before.last());
}

} // namespace

QString TKnownProperty::plain(const QString& name) {
    const QVector<uint> characters = name.normalized(QString::NormalizationForm_KD).toCaseFolded().toUcs4();
    QVector<uint> kept;
    kept.reserve(characters.size());
    for (const uint character : characters) {
        if (isDelta(character)) {
            kept.append('d');
        } else if (QChar::isLetterOrNumber(character)) {
            kept.append(character);
        } else if (isPrime(character, kept)) {
            kept.append(Prime);
        } else if (kept.isEmpty() || kept.last() == Slash) {
            continue;
        } else if (isSlash(character)) {
            kept.append(Slash);
        } else if (character == Plus && kept.last() != Plus) {
            kept.append(Plus);
        }
    }
    if (!kept.isEmpty() && kept.last() == Slash) {
        kept.removeLast();
    }
    return QString::fromUcs4(kept.constData(), kept.size());
}

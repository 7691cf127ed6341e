#include "TKnownProperty.h"

#include <QVector>

namespace {

constexpr uint Plus = '+';
constexpr uint Slash = '/';

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
        } else if (kept.isEmpty() || kept.last() == Plus || kept.last() == Slash) {
            continue;
        } else if (character == Plus || isSlash(character)) {
            kept.append(character == Plus ? Plus : Slash);
        }
    }
    if (!kept.isEmpty() && kept.last() == Slash) {
        kept.removeLast();
    }
    return QString::fromUcs4(kept.constData(), kept.size());
}

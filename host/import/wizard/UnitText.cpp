#include "UnitText.h"

#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace {

constexpr int longestUnit = 20;
constexpr ushort perMille = 0x2030;
constexpr ushort degree = 0x00B0;

/// Rings and raised o's that stand for the sign of degrees.
QString withDegrees(QString text) {
    constexpr ushort raisedO = 0x00BA;
    constexpr ushort ring = 0x02DA;
    return text.replace(QChar(raisedO), QChar(degree)).replace(QChar(ring), QChar(degree));
}

bool isSeparator(QChar character) {
    constexpr ushort middleDot = 0x00B7;
    return character.isSpace() || character.isMark() || QStringLiteral("()[]{}.,_-*^").contains(character) ||
           character == middleDot;
}

const QSet<QString>& knownUnits() {
    static const QSet<QString> known = {
        "m",      "cm",   "mm",   "km",    "ft",   "feet", "in",    "mft",  "mbsf",    "mmd",      "mtvd",
        "mtvdss", "mrkb", "ppm",  "ppb",   "ppmv", "ppmw", "mol",   "c",    "f",       "k",        "s",
        "sec",    "min",  "h",    "d",     "day",  "days", "jours", "ma",   "ka",      "my",       "bar",
        "bars",   "psi",  "psia", "pa",    "kpa",  "mpa",  "md",    "g",    "mg",      "kg",       "ug",
        "ng",     "l",    "ml",   "api",   "wt",   "vol",  "mgg",   "gkg",  "frac",    "fraction", "v",
        "mv",     "kj",   "kcal", "kjmol", "degc", "gcc",  "degf",  "kgm3", "percent", "pourcent",
    };
    return known;
}

} // namespace

QString UnitText::plain(const QString& unit) {
    QString text = withDegrees(unit).normalized(QString::NormalizationForm_KD).toLower();
    text.truncate(static_cast<int>(std::remove_if(text.begin(), text.end(), isSeparator) - text.begin()));
    for (const auto* permil : {"permille", "permil", "pourmille", "o/oo", "0/00"}) {
        text.replace(QLatin1String(permil), QString(QChar(perMille)));
    }
    text.replace(QLatin1String("vs"), QString()).replace(QLatin1String("vpdb"), QLatin1String("pdb"));
    text.replace(QLatin1String("vsmow"), QLatin1String("smow"));
    text.replace(QLatin1String("degc"), QChar(degree) + QStringLiteral("c"));
    static const QSet<QString> withoutUnit = {
        "na", "n/a", "none", "sans", QString(QChar(0x2013)), QString(QChar(0x2014)), "/"};
    return withoutUnit.contains(text) ? QString() : text;
}

bool UnitText::isLikely(const QString& text) {
    const QString bare = plain(text);
    if (bare.isEmpty() || bare.size() > longestUnit) {
        return false;
    }
    constexpr ushort micro = 0x03BC;
    const auto isSign = [](QChar character) {
        return character == '%' || character == perMille || character == degree || character == micro;
    };
    if (std::any_of(bare.begin(), bare.end(), isSign) || knownUnits().contains(bare)) {
        return true;
    }
    // A quotient of masses, energies, volumes or lengths: mg HC/g TOC, kJ/mol, g/cm3.
    static const QRegularExpression quotient(
        QStringLiteral("^(?:[mkun]?g|kj|kcal|mol|[mk]?l|[mck]?m3?)(?:hc|co2|co|o2|h|c)?"
                       "/(?:[mk]?g|mol|[mck]?m3?|[mk]?l|cc|s|min|h|ma)(?:toc|cot|rock|roche|c|hc)?$"));
    return quotient.match(bare).hasMatch();
}

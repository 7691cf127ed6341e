#include "ColumnMatcher.h"

#include "ColumnHeader.h"
#include "GasNotation.h"
#include "UnitText.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

constexpr int longestName = 200; // nobody names a property at more length; files may hold anything

QString comparable(const QString& name) {
    constexpr ushort partial = 0x2202; // looks like a delta, and is used for one
    return GasNotation::canonical(TKnownProperty::plain(QString(name).replace(QChar(partial), 'd')));
}

QStringList namesOf(const TKnownProperty& property) {
    QStringList names = {property.label, property.english, property.french};
    names += property.aliases;
    std::transform(names.begin(), names.end(), names.begin(), comparable);
    names.removeAll({});
    names.removeDuplicates();
    return names;
}

QStringList unitsOf(const TKnownProperty& property) {
    QStringList units(property.unit);
    units += property.unitAliases;
    std::transform(units.begin(), units.end(), units.begin(), UnitText::plain);
    return units;
}

struct Bracketed {
    QString before;
    QString inside;
};

/// "TOC (%)" and "Tmax [°C]", split; nothing inside without brackets at the end.
Bracketed split(const QString& text) {
    static const QRegularExpression form(QStringLiteral("^(.*\\S)\\s*[(\\[]([^()\\[\\]]+)[)\\]]$"));
    const auto found = form.match(text);
    return found.hasMatch() ? Bracketed{found.captured(1), found.captured(2)} : Bracketed{text, {}};
}

} // namespace

ColumnMatcher::ColumnMatcher(const QVector<TKnownProperty>& properties) : m_properties(properties) {
    for (int i = 0; i < properties.size(); ++i) {
        for (const QString& name : namesOf(properties[i])) {
            m_byName[name] += i;
        }
        m_units += unitsOf(properties[i]);
    }
}

ColumnMatcher::Match ColumnMatcher::match(const ColumnHeader& header) const {
    for (int dropped = 0; dropped < header.levels.size(); ++dropped) {
        const QString group = header.levels.mid(0, dropped).join(' ');
        const QString text = header.levels.mid(dropped).join(' ');
        if (text.size() > longestName) {
            continue;
        }
        Match best;
        for (const Name& name : readings(text, header.unit)) {
            const Match found = find(name, group);
            if (found.property != Match::none) {
                return found;
            }
            best = best.otherUnit == Match::none ? found : best;
        }
        if (best.otherUnit != Match::none) {
            return best;
        }
    }
    return {};
}

bool ColumnMatcher::fits(int property, const ColumnHeader& header) const {
    const Bracketed last = split(header.levels.isEmpty() ? QString() : header.levels.last());
    const QString unit = header.unit.isEmpty() && isUnit(last.inside) ? last.inside : header.unit;
    return hasUnit(property, UnitText::plain(unit)) && match(header).otherUnit != property;
}

QVector<ColumnMatcher::Name> ColumnMatcher::readings(const QString& text, const QString& unit) const {
    QVector<Name> names;
    const Bracketed parts = split(text);
    if (isUnit(parts.inside)) {
        names += {parts.before, unit.isEmpty() ? parts.inside : unit};
        return names;
    }
    names += {text, unit};
    static const QRegularExpression gap(QStringLiteral("[\\s,;_]+"));
    const int start = text.indexOf(gap);
    for (int place = start; place > 0; place = text.indexOf(gap, place + 1)) {
        const QString end = text.mid(place + 1);
        if (isUnit(end)) {
            names += {text.left(place), end};
        }
    }
    return names;
}

ColumnMatcher::Match ColumnMatcher::find(const Name& name, const QString& group) const {
    const QString unit = UnitText::plain(name.unit);
    const bool isIsotopes = TKnownProperty::plain(group).contains(QLatin1String("isotop"));
    Match found;
    for (const int property : m_byName.value(comparable(name.text))) {
        constexpr ushort perMille = 0x2030;
        if (isIsotopes && !m_properties[property].unit.contains(QChar(perMille))) {
            continue;
        }
        if (hasUnit(property, unit)) {
            return {property, Match::none};
        }
        if (found.otherUnit == Match::none) {
            found.otherUnit = property;
        }
    }
    return found;
}

bool ColumnMatcher::isUnit(const QString& text) const {
    const QString unit = UnitText::plain(text);
    return !unit.isEmpty() && (UnitText::isLikely(text) ||
                               std::any_of(m_units.begin(), m_units.end(),
                                           [&](const QStringList& units) { return units.contains(unit); }));
}

bool ColumnMatcher::hasUnit(int property, const QString& unit) const {
    constexpr ushort perMille = 0x2030;
    const QStringList& units = m_units[property];
    const bool isBarePerMille = unit == QString(QChar(perMille));
    return unit.isEmpty() || units.contains(unit) ||
           (isBarePerMille && std::any_of(units.begin(), units.end(),
                                          [&](const QString& own) { return own.startsWith(unit); }));
}

#pragma once

#include "TKnownProperty.h"

#include <QHash>
#include <QStringList>
#include <QVector>

struct ColumnHeader;

/// Finds the property that a column holds by name and unit, in whatever spelling and language.
class ColumnMatcher {
public:
    /// What a header was found to mean; `none` and `none` if nothing.
    struct Match {
        static constexpr int none = -1;
        int property = none; ///< place among the properties
        /// A property of this name exists, but its values come in another unit.
        int otherUnit = none;
    };

    explicit ColumnMatcher(const QVector<TKnownProperty>& properties);

    const QVector<TKnownProperty>& properties() const { return m_properties; }

    /// By the whole header, or by its lower levels alone ("Molecular composition – C1"), which in a group of
    /// isotope ratios must be one. A unit in brackets or behind the name is understood.
    Match match(const ColumnHeader& header) const;

    /// Whether the column gives no unit, or one of the property's.
    bool fits(int property, const ColumnHeader& header) const;

private:
    struct Name {
        QString text;
        QString unit;
    };

    QVector<Name> readings(const QString& text, const QString& unit) const;
    Match find(const Name& name, const QString& group) const;
    bool isUnit(const QString& text) const;
    bool hasUnit(int property, const QString& unit) const;

    QVector<TKnownProperty> m_properties;
    QHash<QString, QVector<int>> m_byName;
    QVector<QStringList> m_units; // of each property, plain
};

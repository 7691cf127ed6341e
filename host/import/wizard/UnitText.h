#pragma once

#include <QString>

/// Units as tables write them.
class UnitText {
public:
    /// A unit as it is compared: lower case, without brackets, blanks, points and raised digits: "[Wt. %]"
    /// gives "wt%", "ºC" gives "°c", "per mil vs V-PDB" gives "‰pdb". Dashes and other signs for "without
    /// unit" give an empty text.
    static QString plain(const QString& unit);

    /// Whether a text reads like a unit by itself: a known one, or one with signs such as %, ‰ and °.
    static bool isLikely(const QString& text);
};

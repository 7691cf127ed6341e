#pragma once

#include <QString>
#include <QStringList>

/// A property of samples that the application knows by name.
struct TKnownProperty {
    enum class Family { General, SourceRock, Gas };

    /// Never changes and is never shown: "toc", "gas.c1", "gas.d13c.c1".
    QString key;
    /// What the column is called in every language of stored data: "TOC", "Tmax", "δ13C C1".
    QString label;
    QString english; ///< "Total organic carbon"
    QString french;  ///< "Carbone organique total"
    /// As it is written behind the label, "" for none: "wt%", "mg HC/g TOC", "°C", "‰ VPDB".
    QString unit;
    /// Other ways to write the same unit: "%", "wt.%", "% wt", "% pds".
    QStringList unitAliases;
    /// Other names that tables give it, in any language, as `TKnownProperty::plain` writes them.
    QStringList aliases;
    Family family = Family::General;
};

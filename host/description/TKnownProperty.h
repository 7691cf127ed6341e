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

    /// A name as it is compared, whoever wrote it: lower case, without accents, a delta as "d", small raised
    /// and lowered digits as digits, without blanks and punctuation. A plus behind a name, a slash between
    /// two and a prime behind a digit stay, for they tell names apart: "C₆ +" gives "c6+", "δ¹³C-CH₄ (‰)"
    /// gives "d13cch4", "S1 / TOC" gives "s1/toc", "S3’" gives "s3'".
    static QString plain(const QString& name);
};

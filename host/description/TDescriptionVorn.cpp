#include "TDescriptionVorn.h"

const QVector<TKnownProperty>& TDescriptionVorn::properties() const {
    using Family = TKnownProperty::Family;
    static const QVector<TKnownProperty> known = {
        {QStringLiteral("toc"),
         QStringLiteral("TOC"),
         QStringLiteral("Total organic carbon"),
         QStringLiteral("Carbone organique total"),
         QStringLiteral("wt%"),
         {QStringLiteral("%")},
         {QStringLiteral("cot")},
         Family::SourceRock},
    };
    return known;
}

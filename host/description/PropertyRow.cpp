#include "PropertyRow.h"

namespace {

QStringList listed(const char* text) {
    return QString::fromUtf8(text).split(QLatin1Char('|'), Qt::SkipEmptyParts);
}

} // namespace

TKnownProperty PropertyRow::property(TKnownProperty::Family family) const {
    return {QString::fromUtf8(key),
            QString::fromUtf8(label),
            QString::fromUtf8(english),
            QString::fromUtf8(french),
            QString::fromUtf8(unit),
            listed(unitAliases),
            listed(aliases),
            family};
}

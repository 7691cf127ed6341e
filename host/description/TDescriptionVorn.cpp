#include "TDescriptionVorn.h"

#include "GasProperties.h"
#include "GeneralProperties.h"
#include "SourceRockProperties.h"

const QVector<TKnownProperty>& TDescriptionVorn::properties() const {
    static const QVector<TKnownProperty> known =
        GeneralProperties::all() + SourceRockProperties::all() + GasProperties::all();
    return known;
}

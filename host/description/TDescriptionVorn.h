#pragma once

#include "TDescriptionWithProperty.h"

/// The properties of source rocks and of gases that laboratories measure.
class TDescriptionVorn : public TDescriptionWithProperty {
public:
    TDescriptionVorn() = default;

    const QVector<TKnownProperty>& properties() const override;
};

#pragma once

#include "TKnownProperty.h"

#include <QVector>

/// What pyrolysis, combustion and microscopy measure of a source rock.
namespace SourceRockProperties {

QVector<TKnownProperty> all();

} // namespace SourceRockProperties

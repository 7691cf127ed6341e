#pragma once

#include "TKnownProperty.h"

#include <QVector>

/// What pyrolysis, combustion and microscopy measure of a source rock.
namespace SourceRockProperties {

/// In the order in which they are offered.
QVector<TKnownProperty> all();

} // namespace SourceRockProperties

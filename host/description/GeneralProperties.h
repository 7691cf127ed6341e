#pragma once

#include "TKnownProperty.h"

#include <QVector>

/// What is known of a sample before it is measured: names, places, depths, ages.
namespace GeneralProperties {

/// In the order in which they are offered.
QVector<TKnownProperty> all();

} // namespace GeneralProperties

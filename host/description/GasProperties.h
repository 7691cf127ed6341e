#pragma once

#include "TKnownProperty.h"

#include <QVector>

/// What chromatography and mass spectrometry measure of a gas: amounts, ratios, isotopes.
namespace GasProperties {

/// In the order in which they are offered.
QVector<TKnownProperty> all();

} // namespace GasProperties

#pragma once

#include "TKnownProperty.h"

#include <QVector>

/// What chromatography and mass spectrometry measure of a gas: amounts, ratios, isotopes.
namespace GasProperties {

QVector<TKnownProperty> all();

} // namespace GasProperties

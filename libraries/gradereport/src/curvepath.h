#pragma once

#include "gradereport/graderecord.h"

#include "chartscale.h"

#include <string>

namespace gradereport {

/// Width of a column of the pixel grid a curve is thinned to, in units of the drawing.
inline constexpr double curveColumn = 2.0;

/// Number for a path: one decimal at most, no zero in front of the point.
[[nodiscard]] std::string pathNumber(double value);

/// Path data of a curve in a drawing: absolute `M`, then relative `l` pairs. Of the samples in one column of
/// the pixel grid the lowest and the highest stay, so no spike is lost; then points that stand less than a
/// fifth of a unit off a straight line go. The text is bounded by the width of the drawing, not by the number
/// of samples. A sample that is not finite interrupts the line; a lone sample is a dash. Samples past the
/// shorter of the two vectors are not drawn.
[[nodiscard]] std::string curvePath(const Curve& curve, const ChartScale& x, const ChartScale& y);

} // namespace gradereport

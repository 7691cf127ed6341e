#pragma once

#include "TAnalysisData.h"

#include <QByteArray>

/// The stored form of a curve: all abscissae, then all ordinates, each a 4-byte IEEE 754 number with its
/// lowest byte first. The number of points is stored beside it.
namespace TechDB::CurveBlob {

/// The curve must be usable.
QByteArray encoded(const TAnalysisData& curve);

/// Whether the bytes can be a curve of so many points.
bool fits(const QByteArray& bytes, qint64 pointCount);

/// Needs bytes that fit. The values come back bit for bit.
TAnalysisData decoded(const QByteArray& bytes);

} // namespace TechDB::CurveBlob

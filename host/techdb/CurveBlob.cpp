#include "CurveBlob.h"

#include <QtEndian>

#include <limits>

namespace TechDB::CurveBlob {

namespace {

constexpr qsizetype valueSize = sizeof(float);
static_assert(valueSize == 4 && std::numeric_limits<float>::is_iec559);

} // namespace

QByteArray encoded(const TAnalysisData& curve) {
    const int count = curve.dataSize();
    QByteArray bytes(static_cast<int>(2 * valueSize * count), Qt::Uninitialized);
    qToLittleEndian<float>(curve.x().data(), count, bytes.data());
    qToLittleEndian<float>(curve.y().data(), count, bytes.data() + valueSize * count);
    return bytes;
}

bool fits(const QByteArray& bytes, qint64 pointCount) {
    return pointCount > 0 && pointCount <= TAnalysisData::maximumPoints &&
           bytes.size() == 2 * valueSize * pointCount;
}

TAnalysisData decoded(const QByteArray& bytes) {
    const qsizetype count = bytes.size() / (2 * valueSize);
    std::vector<float> x(static_cast<std::size_t>(count));
    std::vector<float> y(x.size());
    qFromLittleEndian<float>(bytes.constData(), count, x.data());
    qFromLittleEndian<float>(bytes.constData() + valueSize * count, count, y.data());
    return {std::move(x), std::move(y)};
}

} // namespace TechDB::CurveBlob

#pragma once

#include "TData.h"
#include <QRectF>
#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace TechPlot {

/// The rectangle around the points that can be drawn, of no size for a single one; nothing without any.
inline std::optional<QRectF> boundsOf(const TData* data) {
    constexpr float none = std::numeric_limits<float>::infinity();
    float left = none;
    float right = -none;
    float low = none;
    float high = -none;
    for (int i = 0; data != nullptr && i < data->count(); ++i) {
        const float x = data->X()[i];
        const float y = data->Y()[i];
        if (!std::isfinite(x) || !std::isfinite(y))
            continue;
        left = std::min(left, x);
        right = std::max(right, x);
        low = std::min(low, y);
        high = std::max(high, y);
    }
    if (left > right)
        return {};
    const auto point = [](float x, float y) {
        return QPointF(static_cast<double>(x), static_cast<double>(y));
    };
    return QRectF(point(left, low), point(right, high));
}

} // namespace TechPlot

#pragma once

#include "TData.h"
#include <QRectF>
#include <optional>

namespace TechPlot {

/// The rectangle around the points that can be drawn, of no size for a single one; nothing without any.
inline std::optional<QRectF> boundsOf(const TData* data) {
    std::optional<QRectF> bounds;
    for (int i = 0; data != nullptr && i < data->count(); ++i) {
        if (!data->isDrawable(i))
            continue;
        const QPointF point(static_cast<double>(data->X()[i]), static_cast<double>(data->Y()[i]));
        if (!bounds)
            bounds = QRectF(point, point);
        bounds->setLeft(qMin(bounds->left(), point.x()));
        bounds->setRight(qMax(bounds->right(), point.x()));
        bounds->setTop(qMin(bounds->top(), point.y()));
        bounds->setBottom(qMax(bounds->bottom(), point.y()));
    }
    return bounds;
}

} // namespace TechPlot

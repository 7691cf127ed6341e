#include "VKPlotterPeakIndexation.h"

#include "TDataBounds.h"
#include "TPalette.h"
#include "TPeakItem.h"
#include <algorithm>
#include <cmath>

namespace TechPlot {

VKPlotterPeakIndexation::VKPlotterPeakIndexation(TData* data) : m_data(data) {
    const auto found = boundsOf(data);
    m_hasPoints = found.has_value();
    m_bounds = found.value_or(QRectF());
}

VKPlotterPeakIndexation::~VKPlotterPeakIndexation() = default;

void VKPlotterPeakIndexation::setPointSize(double size) {
    if (!std::isnan(size))
        m_pointSize = std::clamp(size, 1.0, 72.0);
}

bool VKPlotterPeakIndexation::hasColor(int index) const {
    return m_data && m_data->color() != nullptr && index >= 0 && index < m_data->count() &&
           std::isfinite(m_data->color()[index]);
}

QColor VKPlotterPeakIndexation::markerColor(int index) const {
    if (m_palette == nullptr || !hasColor(index))
        return getStyle()->colorBrush();
    return m_palette->colorAt(static_cast<double>(m_data->color()[index]));
}

VKPlotterPeakIndexation::Shape VKPlotterPeakIndexation::markerShape(int index) const {
    if (!hasColor(index))
        return Shape::Diamond;
    const float value = m_data->color()[index];
    if (qFuzzyCompare(value, 1.0F))
        return Shape::Circle;
    return qFuzzyCompare(value, 3.0F) ? Shape::Square : Shape::Diamond;
}

std::unique_ptr<QwtPlotItem> VKPlotterPeakIndexation::makeItem() const {
    return std::make_unique<TPeakItem>(*this);
}

} // namespace TechPlot

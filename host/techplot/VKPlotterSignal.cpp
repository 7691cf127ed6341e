#include "VKPlotterSignal.h"

#include "TDataBounds.h"
#include "TEditorRegistry.h"
#include "TSignalItem.h"
#include <cmath>
#include <limits>

namespace TechPlot {

VKPlotterSignal::VKPlotterSignal() = default;
VKPlotterSignal::~VKPlotterSignal() = default;

void VKPlotterSignal::setRawData(TData* data) {
    if (data != m_data.get())
        m_data.reset(data);
    initMinMaxXYZC();
}

void VKPlotterSignal::settingRead() {
    if (const auto thickness = TEditorRegistry::returnMe().settings().lineThickness)
        getStyle()->setLineThickness(*thickness);
}

void VKPlotterSignal::initMinMaxXYZC() {
    m_measured = false;
    refreshDraw();
}

void VKPlotterSignal::measure() const {
    if (m_measured)
        return;
    const auto found = boundsOf(m_data.get());
    m_hasPoints = found.has_value();
    m_bounds = found.value_or(QRectF());
    m_measured = true;
}

QRectF VKPlotterSignal::bounds() const {
    measure();
    return m_bounds;
}

bool VKPlotterSignal::hasPoints() const {
    measure();
    return m_hasPoints;
}

std::unique_ptr<QwtPlotItem> VKPlotterSignal::makeItem() const {
    return std::make_unique<TSignalItem>(*this);
}

int VKPlotterSignal::nearestSample(double time) const {
    int nearest = -1;
    double least = std::numeric_limits<double>::infinity();
    for (int i = 0; m_data && i < m_data->count(); ++i) {
        if (!m_data->isDrawable(i))
            continue;
        const double distance = std::abs(static_cast<double>(m_data->X()[i]) - time);
        if (distance < least) {
            least = distance;
            nearest = i;
        }
    }
    return nearest;
}

} // namespace TechPlot

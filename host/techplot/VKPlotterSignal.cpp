#include "VKPlotterSignal.h"

#include "TDataBounds.h"
#include "TSignalItem.h"
#include <QSettings>
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
    const double standard = getStyle()->lineThickness();
    getStyle()->setLineThickness(
        QSettings().value(QStringLiteral("techplot/lineThickness"), standard).toDouble());
}

void VKPlotterSignal::initMinMaxXYZC() {
    const auto found = boundsOf(m_data.get());
    m_hasPoints = found.has_value();
    m_bounds = found.value_or(QRectF());
    refreshDraw();
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

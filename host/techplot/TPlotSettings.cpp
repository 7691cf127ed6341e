#include "TPlotSettings.h"

#include <QSettings>

namespace TechPlot {

TPlotSettings TPlotSettings::read() {
    const QSettings stored;
    TPlotSettings settings;
    settings.gridVisible = stored.value(QStringLiteral("techplot/grid"), true).toBool();
    const QVariant thickness = stored.value(QStringLiteral("techplot/lineThickness"));
    if (thickness.isValid()) {
        settings.lineThickness = thickness.toDouble();
    }
    return settings;
}

} // namespace TechPlot

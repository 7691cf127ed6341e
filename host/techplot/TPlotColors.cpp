#include "TPlotColors.h"

#include "TavrelColors.h"
#include <algorithm>
#include <cmath>

namespace TechPlot {

namespace {

constexpr double leastContrast = 3.0;
constexpr double step = 0.01;

double linear(double channel) {
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color) {
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

} // namespace

double TPlotColors::contrast(const QColor& one, const QColor& other) {
    const double a = luminance(one) + 0.05;
    const double b = luminance(other) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

QColor TPlotColors::readable(const QColor& color, const QColor& background) {
    QColor wanted = color.isValid() ? color.toRgb() : QColor(Qt::gray);
    if (contrast(wanted, background) >= leastContrast)
        return wanted;
    const double direction = luminance(background) > 0.18 ? -step : step;
    for (double lightness = wanted.lightnessF(); lightness >= 0.0 && lightness <= 1.0;
         lightness += direction) {
        QColor shade =
            QColor::fromHslF(wanted.hslHueF(), wanted.hslSaturationF(), lightness, wanted.alphaF());
        if (contrast(shade, background) >= leastContrast)
            return shade;
    }
    return direction < 0 ? QColor(Qt::black) : QColor(Qt::white);
}

QPalette TPlotColors::paper() {
    QPalette palette = TavrelColors::palette(false);
    for (const auto role : {QPalette::Window, QPalette::Base})
        palette.setColor(QPalette::All, role, Qt::white);
    for (const auto role : {QPalette::WindowText, QPalette::Text})
        palette.setColor(QPalette::All, role, Qt::black);
    return palette;
}

} // namespace TechPlot

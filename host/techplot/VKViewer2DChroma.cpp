#include "VKViewer2DChroma.h"

#include <QLocale>

namespace TechPlot {

VKViewer2DChroma::VKViewer2DChroma(QWidget* parent) : VKViewer2D(parent) {}

QString VKViewer2DChroma::timeTitle() const {
    return tr("Time (s)", "Temps (s)");
}

QString VKViewer2DChroma::signalTitle() const {
    return tr("FID signal", "Signal FID");
}

QString VKViewer2DChroma::readoutText(double time, double signal) const {
    const QLocale locale;
    return tr("%1 s, FID %2", "%1 s, FID %2")
        .arg(locale.toString(time, 'g', 6), locale.toString(signal, 'g', 6));
}

QRectF VKViewer2DChroma::homeFor(const QRectF& bounds) const {
    QRectF home = bounds;
    if (home.top() > 0 && home.top() < home.height())
        home.setTop(0);
    return home;
}

} // namespace TechPlot

#pragma once

#include "VKViewer2D.h"

namespace TechPlot {

/// A viewer of a chromatogram: time in seconds against the signal of the flame-ionisation detector. Its
/// home range begins at a signal of zero where the curve comes near it.
class VKViewer2DChroma : public VKViewer2D {
    Q_OBJECT

public:
    explicit VKViewer2DChroma(QWidget* parent = nullptr);

protected:
    QString timeTitle() const override;
    QString signalTitle() const override;
    QString readoutText(double time, double signal) const override;
    QRectF homeFor(const QRectF& bounds) const override;
};

} // namespace TechPlot

#pragma once

#include "ChangeScan.h"

#include <QWidget>

class QSlider;

/// The strip under a slider: a small column for each part of its way, the higher the more analyses change
/// grade there. The tool tip counts them. Paler while the numbers are being counted anew.
class ChangeStrip : public QWidget {
    Q_OBJECT

public:
    /// The scan outlives this object or ends with it; the slider is the one that the strip stands under.
    ChangeStrip(const ChangeScan& scan, ChangeScan::Dial dial, const QSlider& slider, int decimals);

    QSize sizeHint() const override { return {80, 14}; }
    QSize minimumSizeHint() const override { return {0, 14}; }

    /// What the tool tip says at a place of the strip.
    QString textAt(int x) const;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void describe();
    QRectF way() const;
    QString columnText(int column) const;

    const ChangeScan& m_scan;
    ChangeScan::Dial m_dial;
    const QSlider& m_slider;
    int m_decimals;
};

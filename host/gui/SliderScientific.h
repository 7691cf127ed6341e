#pragma once

#include "SliderScale.h"

#include <QWidget>

class QDoubleSpinBox;
class QSlider;
class QVBoxLayout;

/// A labelled number within bounds: a slider to move it and a box to read it and type it exactly. Nothing is
/// emitted while it is built, and value() is to the last bit the double it was given, whatever the box
/// rounds it to, until the user moves it; from then on it is what the box shows. A value out of bounds is
/// brought to the nearer one, one that isn't a number to the minimum.
///
/// The wheel moves it only while it has the focus, so that scrolling past changes nothing.
class SliderScientific : public QWidget {
    Q_OBJECT

public:
    SliderScientific(QWidget* parent, const QString& label, const double& value, const double& minimum,
                     const double& maximum, const QString& help);

    double value() const { return m_value; }
    // The values it can be moved to.
    const SliderScale& scale() const { return m_scale; }

    // Puts a widget under the slider, as wide as that is, and takes it over. For once.
    void setUnderlay(QWidget* widget);
    const QSlider& slider() const { return *m_slider; }

signals:
    /// Once for each new value that the user chose; a number that is being typed counts when it is complete.
    void valueChanged(double value);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void moveTo(double value);

    SliderScale m_scale;
    double m_value;
    QSlider* m_slider;
    QVBoxLayout* m_column;
    QDoubleSpinBox* m_box;
};

#include "SliderScientific.h"

#include <QDoubleSpinBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSlider>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

SliderScientific::SliderScientific(QWidget* parent, const QString& label, const double& value,
                                   const double& minimum, const double& maximum, const QString& help)
    : QWidget(parent), m_scale(minimum, maximum),
      m_value(std::isnan(value) ? m_scale.minimum()
                                : std::clamp(value, m_scale.minimum(), m_scale.maximum())),
      m_slider(new QSlider(Qt::Horizontal)), m_column(new QVBoxLayout), m_box(new QDoubleSpinBox) {
    auto* caption = new QLabel(label);
    caption->setBuddy(m_slider);
    // Sliders above each other line up, as long as their labels keep within twenty letters.
    caption->setMinimumWidth(caption->fontMetrics().averageCharWidth() * 20);

    m_slider->setRange(0, m_scale.lastPosition());
    m_slider->setPageStep(std::max(1, m_scale.lastPosition() / 10));
    m_slider->setValue(m_scale.position(m_value));
    m_slider->setMinimumWidth(160);
    m_slider->setAccessibleName(label);
    m_slider->setAccessibleDescription(help);

    m_box->setDecimals(m_scale.decimals());
    m_box->setRange(m_scale.minimum(), m_scale.maximum());
    m_box->setSingleStep(m_scale.step());
    m_box->setValue(m_value);
    m_box->setKeyboardTracking(false);
    m_box->setAlignment(Qt::AlignRight);
    m_box->setMinimumWidth(m_box->fontMetrics().averageCharWidth() * 12);
    m_box->setAccessibleName(label);
    m_box->setAccessibleDescription(help);

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(caption);
    m_column->setSpacing(0);
    m_column->addWidget(m_slider);
    row->addLayout(m_column, 1);
    row->addWidget(m_box);
    setToolTip(help);
    setWhatsThis(help);
    setFocusProxy(m_slider);

    for (QWidget* part : {static_cast<QWidget*>(m_slider), static_cast<QWidget*>(m_box)}) {
        part->setFocusPolicy(Qt::StrongFocus);
        part->installEventFilter(this);
    }
    connect(m_slider, &QSlider::valueChanged, this,
            [this](int position) { moveTo(m_scale.value(position)); });
    connect(m_box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, &SliderScientific::moveTo);
}

void SliderScientific::setUnderlay(QWidget* widget) {
    m_column->addWidget(widget);
}

void SliderScientific::moveTo(double value) {
    const QSignalBlocker quietSlider(m_slider);
    const QSignalBlocker quietBox(m_box);
    m_slider->setValue(m_scale.position(value));
    m_box->setValue(value);
    m_value = value;
    emit valueChanged(value);
}

bool SliderScientific::eventFilter(QObject* watched, QEvent* event) {
    const auto* part = qobject_cast<const QWidget*>(watched);
    if (event->type() == QEvent::Wheel && part != nullptr && !part->hasFocus()) {
        event->ignore();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

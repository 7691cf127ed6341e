#include "CheckDials.h"

#include "SliderScientific.h"

#include <QWidget>

#include <algorithm>

namespace {

SliderScientific* within(const QList<SliderScientific*>& sliders, double minimum, double maximum) {
    const auto found = std::find_if(sliders.begin(), sliders.end(), [=](const SliderScientific* slider) {
        return slider->scale().minimum() == minimum && slider->scale().maximum() == maximum;
    });
    return found == sliders.end() ? nullptr : *found;
}

std::vector<double> valuesOf(const SliderScale& scale) {
    std::vector<double> values;
    for (int position = 0; position <= scale.lastPosition(); ++position) {
        values.push_back(scale.value(position));
    }
    return values;
}

} // namespace

std::optional<CheckDials> CheckDials::of(const QWidget& bar) {
    const QList<SliderScientific*> sliders = bar.findChildren<SliderScientific*>();
    const CheckDials dials(within(sliders, 0.01, 0.8), within(sliders, 0.2, 2.0), within(sliders, 0.0, 5.0));
    if (dials.m_sensitivity == nullptr || dials.m_coelution == nullptr || dials.m_height == nullptr) {
        return std::nullopt;
    }
    return dials;
}

gradereport::EngineSettings CheckDials::settings() const {
    return {sensitivityAt(m_sensitivity->value()), m_coelution->value(), m_height->value()};
}

std::vector<double> CheckDials::coelutions() const {
    return valuesOf(m_coelution->scale());
}

std::vector<double> CheckDials::heights() const {
    return valuesOf(m_height->scale());
}

#include "SliderScale.h"

#include <algorithm>
#include <cmath>

namespace {

// What a spin box can show and a double can hold apart.
constexpr int mostDecimals = 12;

double finiteOr0(double value) {
    return std::isfinite(value) ? value : 0.0;
}

} // namespace

SliderScale::SliderScale(double minimum, double maximum)
    : m_minimum(std::min(finiteOr0(minimum), finiteOr0(maximum))),
      m_maximum(std::max(finiteOr0(minimum), finiteOr0(maximum))) {
    // Halves, for a range of doubles may be wider than any double.
    const double halfRange = m_maximum / 2 - m_minimum / 2;
    if (halfRange <= 0)
        return;
    const int exponent = static_cast<int>(std::floor(std::log10(halfRange) - std::log10(50.0) + 1e-9));
    m_decimals = std::clamp(-exponent, 0, mostDecimals);
    m_step = exponent >= 0 ? std::pow(10.0, exponent) : 1.0 / std::pow(10.0, m_decimals);
    m_lastPosition = std::max(1, static_cast<int>(std::ceil(halfRange / m_step * 2 - 1e-9)));
}

double SliderScale::value(int position) const {
    if (position <= 0)
        return m_minimum;
    if (position >= m_lastPosition)
        return m_maximum;
    const double value = std::fma(position, m_step, m_minimum); // the product alone may be beyond all doubles
    const double scale = std::pow(10.0, m_decimals);
    const double digits = std::round(value * scale);
    return std::isfinite(digits) ? std::clamp(digits / scale, m_minimum, m_maximum) : value;
}

int SliderScale::position(double value) const {
    if (!(value > m_minimum))
        return 0;
    if (value >= m_maximum)
        return m_lastPosition;
    const double steps = (value / 2 - m_minimum / 2) / m_step * 2;
    return std::min(m_lastPosition, static_cast<int>(std::lround(steps)));
}

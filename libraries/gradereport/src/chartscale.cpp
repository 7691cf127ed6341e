#include "chartscale.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace gradereport {

namespace {

constexpr double largestPlainLabel = 1e6;
constexpr int leastPlainExponent = -4;
constexpr int labelDigits = 6;

/// Step of an axis: `factor` times ten to the `exponent`.
struct Step {
    double size;
    int exponent;
};

Step roundStep(double rough) {
    const double exponent = std::floor(std::log10(rough));
    const double unit = std::pow(10.0, exponent);
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (rough <= factor * unit)
            return {factor * unit, static_cast<int>(exponent)};
    }
    return {10.0 * unit, static_cast<int>(exponent) + 1};
}

std::string tickLabel(double value, int stepExponent) {
    const bool plain = std::abs(value) < largestPlainLabel && stepExponent >= leastPlainExponent;
    std::array<char, 32> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                      plain ? std::chars_format::fixed : std::chars_format::general,
                                      plain ? std::max(0, -stepExponent) : labelDigits);
    return {buffer.data(), result.ptr};
}

} // namespace

void ValueRange::include(double value) {
    if (!std::isfinite(value))
        return;
    m_low = m_empty ? value : std::min(m_low, value);
    m_high = m_empty ? value : std::max(m_high, value);
    m_empty = false;
}

void ValueRange::include(const std::vector<double>& values) {
    for (const double value : values)
        include(value);
}

ChartScale::ChartScale(double low, double high, double atLow, double atHigh)
    : m_low(low), m_high(high), m_atLow(atLow), m_atHigh(atHigh) {
    const double size = std::max(std::abs(low), std::abs(high));
    if (high / 2 - low / 2 > size * 1e-9)
        return;
    const double margin = std::max(1.0, size / 10);
    m_low = std::max(low - margin, std::numeric_limits<double>::lowest());
    m_high = std::min(high + margin, std::numeric_limits<double>::max());
}

double ChartScale::pixel(double value) const {
    // Halves: the difference of two large values of opposite sign would be infinite.
    const double share = (value / 2 - m_low / 2) / (m_high / 2 - m_low / 2);
    return m_atLow + std::clamp(share, 0.0, 1.0) * (m_atHigh - m_atLow);
}

std::vector<ChartTick> ChartScale::ticks(int wanted) const {
    const Step step = roundStep((m_high / 2 - m_low / 2) / wanted * 2);
    std::vector<ChartTick> ticks;
    const double first = std::ceil(m_low / step.size);
    for (int i = 0; i <= wanted; ++i) {
        // Adding zero turns the -0 that a negative fraction rounds up to into 0.
        const double value = (first + i) * step.size + 0.0;
        if (!(value <= m_high))
            break;
        ticks.push_back({pixel(value), tickLabel(value, step.exponent)});
    }
    return ticks;
}

} // namespace gradereport

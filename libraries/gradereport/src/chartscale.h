#pragma once

#include <string>
#include <vector>

namespace gradereport {

/// Values met so far that are finite.
class ValueRange {
public:
    void include(double value);
    void include(const std::vector<double>& values);

    [[nodiscard]] bool isEmpty() const { return m_empty; }
    [[nodiscard]] double low() const { return m_low; }
    [[nodiscard]] double high() const { return m_high; }

private:
    bool m_empty = true;
    double m_low = 0.0;
    double m_high = 0.0;
};

/// A round value on an axis.
struct ChartTick {
    double pixel = 0.0;
    std::string label;
};

/// Linear scale from values to the coordinates of a drawing. A range of a single value is widened around it.
/// Holds for any finite values, also where their difference overflows.
class ChartScale {
public:
    /// `atLow` and `atHigh` are the coordinates of the ends, in either order.
    ChartScale(double low, double high, double atLow, double atHigh);

    [[nodiscard]] double low() const { return m_low; }
    [[nodiscard]] double high() const { return m_high; }

    /// Coordinate of a finite value; a value outside the range stands at the nearer end.
    [[nodiscard]] double pixel(double value) const;

    /// Multiples of 1, 2 or 5 times a power of ten inside the range, about `wanted` of them.
    [[nodiscard]] std::vector<ChartTick> ticks(int wanted) const;

private:
    double m_low;
    double m_high;
    double m_atLow;
    double m_atHigh;
};

} // namespace gradereport

#pragma once

/// The values that a slider stands on: from the minimum in equal steps of a power of ten, no wider than a
/// hundredth of the range, to the maximum. Each is the double nearest to its decimal text, so that what is
/// read beside the slider is the value itself.
///
/// Bounds in the wrong order are swapped, bounds that aren't finite count as 0. Equal bounds give one value.
class SliderScale {
public:
    SliderScale(double minimum, double maximum);

    double minimum() const { return m_minimum; }
    double maximum() const { return m_maximum; }
    double step() const { return m_step; }
    int decimals() const { return m_decimals; }
    /// Positions are 0 to lastPosition; the last is the maximum.
    int lastPosition() const { return m_lastPosition; }
    double value(int position) const;
    /// The position nearest to the value; a value beyond the range, or none at all, gives an end.
    int position(double value) const;

private:
    double m_minimum;
    double m_maximum;
    double m_step = 1;
    int m_decimals = 0;
    int m_lastPosition = 0;
};

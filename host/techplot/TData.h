#pragma once

#include <QString>
#include <memory>

namespace TechPlot {

/// The points of one plotter, in single precision: `count` abscissae, as many ordinates and, if given, a
/// colour value and a text for each.
///
/// The arrays come from `new[]`, hold `count` elements (null is fine for a count of 0) and belong to the
/// data from the call on: they are freed with `delete[]`, by the destructor or when another array takes
/// their place. A count below 0 counts as 0. Any value may be stored; what draws the data leaves out the
/// points whose X or Y isn't finite.
class TData {
public:
    TData(int count, float* x, float* y);

    int count() const { return m_count; }
    float* X() { return m_x.get(); }
    const float* X() const { return m_x.get(); }
    float* Y() { return m_y.get(); }
    const float* Y() const { return m_y.get(); }

    /// The values that a palette turns into colours; null when there are none.
    void setColor(float* color);
    const float* color() const { return m_color.get(); }

    /// The texts that stand at the points; null when there are none.
    void setText(QString* text);
    const QString* text() const { return m_text.get(); }

    /// Whether a point can be drawn. False for an index out of range.
    bool isDrawable(int index) const;

private:
    int m_count;
    std::unique_ptr<float[]> m_x;
    std::unique_ptr<float[]> m_y;
    std::unique_ptr<float[]> m_color;
    std::unique_ptr<QString[]> m_text;
};

} // namespace TechPlot

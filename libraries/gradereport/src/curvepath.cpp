#include "curvepath.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <optional>
#include <utility>

namespace gradereport {

namespace {

constexpr double straightness = 0.2;

struct Point {
    double x;
    double y;
};

long tenths(double value) {
    return std::lround(value * 10);
}

std::string tenthsText(long value) {
    std::string text = value < 0 ? "-" : "";
    const long size = std::abs(value);
    if (size >= 10 || size == 0)
        text += std::to_string(size / 10);
    if (size % 10 != 0)
        text.append(1, '.').append(std::to_string(size % 10));
    return text;
}

/// Writes path commands; differences are taken between rounded positions, so rounding doesn't add up.
class PathText {
public:
    void moveTo(Point point) {
        m_x = tenths(point.x);
        m_y = tenths(point.y);
        m_text += 'M';
        append(m_x);
        append(m_y);
        m_startsLine = true;
    }
    void lineTo(Point point) {
        const long x = tenths(point.x);
        const long y = tenths(point.y);
        if (m_startsLine)
            m_text += 'l';
        append(x - m_x);
        append(y - m_y);
        m_x = x;
        m_y = y;
        m_startsLine = false;
    }
    void dot() {
        if (m_startsLine)
            m_text += "m-1.5 0h3";
    }
    std::string take() { return std::move(m_text); }

private:
    /// A minus sign, or a second point, separates two numbers as well as a space does.
    void append(long value) {
        const std::string text = tenthsText(value);
        const bool afterCommand = m_text.back() == 'M' || m_text.back() == 'l';
        const bool separate = text.front() == '-' || (text.front() == '.' && m_lastHasPoint);
        if (!afterCommand && !separate)
            m_text += ' ';
        m_text += text;
        m_lastHasPoint = text.find('.') != std::string::npos;
    }

    std::string m_text;
    long m_x = 0;
    long m_y = 0;
    bool m_startsLine = false;
    bool m_lastHasPoint = false;
};

/// Joins points to straight pieces: a point is held back as long as the line from the last written point
/// passes close to all points held since.
class StraightPieces {
public:
    void add(Point point) {
        if (!m_anchor) {
            m_path.moveTo(point);
            m_anchor = point;
            return;
        }
        if (m_held && !passes(point))
            writeHeld();
        narrow(point);
        m_held = point;
    }
    void interrupt() {
        if (m_held) {
            writeHeld();
        } else if (m_anchor) {
            m_path.dot();
        }
        m_anchor.reset();
    }
    std::string take() {
        interrupt();
        return m_path.take();
    }

private:
    bool passes(Point point) const {
        const double dx = point.x - m_anchor->x;
        const double slope = (point.y - m_anchor->y) / dx;
        return dx > 0 && slope >= m_leastSlope && slope <= m_greatestSlope;
    }
    void narrow(Point point) {
        const double dx = point.x - m_anchor->x;
        if (dx <= 0) {
            m_greatestSlope = -std::numeric_limits<double>::infinity();
            return;
        }
        const double dy = point.y - m_anchor->y;
        m_leastSlope = std::max(m_leastSlope, (dy - straightness) / dx);
        m_greatestSlope = std::min(m_greatestSlope, (dy + straightness) / dx);
    }
    void writeHeld() {
        m_path.lineTo(*m_held);
        m_anchor = m_held;
        m_held.reset();
        m_leastSlope = -std::numeric_limits<double>::infinity();
        m_greatestSlope = std::numeric_limits<double>::infinity();
    }

    PathText m_path;
    std::optional<Point> m_anchor;
    std::optional<Point> m_held;
    double m_leastSlope = -std::numeric_limits<double>::infinity();
    double m_greatestSlope = std::numeric_limits<double>::infinity();
};

/// The samples of one column with the least and the greatest coordinate, in the order in which they came.
struct Column {
    long key;
    Point low;
    Point high;
    bool lowFirst;
};

class ColumnThinner {
public:
    void add(long key, Point point) {
        if (m_column && m_column->key == key) {
            widen(point);
            return;
        }
        flush();
        if (m_gap)
            m_pieces.interrupt();
        m_gap = false;
        m_column = Column{key, point, point, true};
    }
    /// A gap inside one column would not be seen and is not drawn.
    void gap() { m_gap = true; }
    std::string take() {
        flush();
        return m_pieces.take();
    }

private:
    void widen(Point point) {
        m_gap = false;
        if (point.y < m_column->low.y) {
            m_column->low = point;
            m_column->lowFirst = false;
        } else if (point.y > m_column->high.y) {
            m_column->high = point;
            m_column->lowFirst = true;
        }
    }
    void flush() {
        if (!m_column)
            return;
        m_pieces.add(m_column->lowFirst ? m_column->low : m_column->high);
        if (m_column->low.y < m_column->high.y)
            m_pieces.add(m_column->lowFirst ? m_column->high : m_column->low);
        m_column.reset();
    }

    StraightPieces m_pieces;
    std::optional<Column> m_column;
    bool m_gap = false;
};

} // namespace

std::string pathNumber(double value) {
    return tenthsText(tenths(value));
}

std::string curvePath(const Curve& curve, const ChartScale& x, const ChartScale& y) {
    const std::size_t count = std::min(curve.x.size(), curve.y.size());
    const double columns = std::abs(x.pixel(x.high()) - x.pixel(x.low())) / curveColumn;
    // Abscissae that jump back and forth would open a column for each sample: those curves are thinned by
    // the number of the sample instead.
    const bool ascending = std::is_sorted(curve.x.begin(), curve.x.end());
    const double samplesPerColumn = std::max(1.0, static_cast<double>(count) / columns);
    ColumnThinner thinner;
    for (std::size_t i = 0; i < count; ++i) {
        if (!std::isfinite(curve.x[i]) || !std::isfinite(curve.y[i])) {
            thinner.gap();
            continue;
        }
        const Point point{x.pixel(curve.x[i]), y.pixel(curve.y[i])};
        const double key = ascending ? point.x / curveColumn : static_cast<double>(i) / samplesPerColumn;
        thinner.add(static_cast<long>(key), point);
    }
    return thinner.take();
}

} // namespace gradereport

#pragma once

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <map>
#include <string>
#include <vector>

/// The engine once more, slow and plain: arrays, indices, and nothing that makes it quick. Without noise, as
/// the chain uses the detector.
namespace plainengine {

using Values = std::vector<double>;

struct Curve {
    Values x;
    Values y;
    double sensitivity = 0.5;
    double coelution = 1.25;
    double height = 2;
};

/// What there is to compare; or why there is nothing, alone.
using Stages = std::map<std::string, Values>;

struct Refused {
    std::string why;
};

/// Toward zero; what doesn't fit gives the smallest.
inline std::int64_t toInt32(double value) {
    const double cut = std::trunc(value);
    return cut > -2147483649.0 && cut < 2147483648.0 ? static_cast<std::int64_t>(cut) : -2147483648LL;
}

/// An index, or -1 for what lies beyond every size: -1 and below, far above, no number.
inline std::int64_t toIndex(double value) {
    return value > -1 && value < 1e15 ? static_cast<std::int64_t>(value) : -1;
}

inline double at(const Values& values, std::int64_t i) {
    return values[static_cast<std::size_t>(i)];
}

inline bool isLowest(const Values& y, std::int64_t i) {
    return i > 0 && i + 1 < static_cast<std::int64_t>(y.size()) && at(y, i + 1) > at(y, i) &&
           at(y, i - 1) >= at(y, i);
}

inline std::pair<Values, Values> extract(const Values& x, const Values& y, double x1, double x2) {
    const auto n = static_cast<std::int64_t>(x.size());
    const double step = (at(x, n - 1) - at(x, 0)) / static_cast<double>(n);
    std::int64_t a = std::max<std::int64_t>(0, toInt32((x1 - at(x, 0)) / step));
    while (a < n - 1 && at(x, a + 1) < x1) {
        ++a;
    }
    a = std::min(a, n - 1); // where the estimate led beyond the end
    while (a > -1 && x1 < at(x, a)) {
        --a;
    }
    a = std::max<std::int64_t>(0, a);
    const std::int64_t estimate = toIndex((x2 - at(x, 0)) / step);
    std::int64_t b = estimate < 0 ? n - 1 : std::min(estimate, n - 1);
    while (b < n - 1 && at(x, b) < x2) {
        ++b;
    }
    if (b <= a) {
        throw Refused{b < a ? "length" : "index out of"};
    }
    return {Values(x.begin() + a, x.begin() + b), Values(y.begin() + a, y.begin() + b)};
}

inline Values smoothed(const Values& y, double sigma) {
    constexpr double pi = 3.141592653589793;
    const double from = sigma * -5.0;
    const double to = sigma * 5.0;
    const auto count = static_cast<std::int64_t>(to - from);
    const std::int64_t start = toInt32(from);
    const auto n = static_cast<std::int64_t>(y.size());
    Values result;
    for (std::int64_t i = 0; i < n; ++i) {
        double sum = 0;
        for (std::int64_t j = 0; j < count; ++j) {
            double place = from + static_cast<double>(j);
            place = place < from ? from : (place > to ? to : place);
            const double weight =
                std::exp(place * place / (sigma * sigma * -2.0)) * (1.0 / (std::sqrt(pi + pi) * sigma));
            const std::int64_t k = std::min(std::max<std::int64_t>(0, start + j + i), n - 1);
            sum += weight * at(y, k);
        }
        result.push_back(sum);
    }
    return result;
}

struct Position {
    std::int64_t index;
    bool end;
};

struct Peak {
    Position left;
    std::int64_t top;
    Position right;
};

/// Finds peaks on one pair of curves, the raw one and the smoothed one.
class Detector {
public:
    Detector(const Values& x, Values raw, Values smooth)
        : m_raw(std::move(raw)), m_smooth(std::move(smooth)), m_n(static_cast<std::int64_t>(x.size())) {
        const double dx = (x.back() - x.front()) / static_cast<double>(m_n);
        for (std::int64_t j = 0; j < m_n; ++j) {
            const bool inside = j >= 2 && j <= m_n - 3;
            second.push_back(inside ? ((at(m_smooth, j + 2) - at(m_smooth, j + 1)) / (2 * dx) -
                                       (at(m_smooth, j - 1) - at(m_smooth, j - 2)) / (2 * dx)) /
                                          (2 * dx)
                                    : 0);
        }
    }

    std::vector<Peak> peaks() const {
        const auto isMinimum = [this](std::int64_t i) { return isLowest(m_smooth, i); };
        std::vector<Peak> found;
        for (Position walker{1, m_n < 2}; !walker.end; walker = next(isTop(), walker.index)) {
            found.push_back({search(isMinimum, walker.index, false), walker.index,
                             search(isMinimum, walker.index, true)});
        }
        part(found);
        for (Peak& peak : found) {
            refine(peak);
        }
        return found;
    }

    Values second;

private:
    using Test = std::function<bool(std::int64_t)>;

    bool isBent(std::int64_t i) const { return i >= 3 && i <= m_n - 4 && at(m_smooth, i) > 0; }

    Test isTop() const {
        return [this](std::int64_t i) {
            return isBent(i) && at(second, i + 1) > at(second, i) && at(second, i - 1) > at(second, i);
        };
    }
    Test isValley() const {
        return [this](std::int64_t i) {
            return isBent(i) && at(second, i) > at(second, i + 1) && at(second, i) > at(second, i - 1);
        };
    }

    Position next(const Test& test, std::int64_t from) const {
        for (std::int64_t i = from + 1; i < m_n; ++i) {
            if (test(i)) {
                return {i, false};
            }
        }
        return {m_n - 1, true};
    }
    Position search(const Test& test, std::int64_t from, bool forward) const {
        if (forward) {
            return test(from) ? Position{from, false} : next(test, from);
        }
        for (std::int64_t i = from; i >= 0; --i) {
            if (test(i)) {
                return {i, false};
            }
        }
        return {0, true};
    }

    void part(std::vector<Peak>& found) const {
        for (std::size_t i = 0; i + 1 < found.size();) {
            Peak& a = found[i];
            Peak& b = found[i + 1];
            if (a.right.index > b.left.index && a.left.index < b.right.index) {
                a.right = b.left = search(isValley(), a.top, true);
            } else {
                ++i;
            }
        }
    }

    void refine(Peak& peak) const {
        if (peak.left.end || peak.right.end) {
            return;
        }
        const auto isMaximum = [this](std::int64_t i) {
            return i > 0 && i < m_n - 1 && at(m_smooth, i) > at(m_smooth, i + 1) &&
                   at(m_smooth, i) >= at(m_smooth, i - 1);
        };
        bool rises = false;
        std::int64_t best = peak.left.index;
        for (std::int64_t i = peak.left.index; i < peak.right.index; ++i) {
            rises = rises || isMaximum(i);
            best = at(m_raw, i) > at(m_raw, best) ? i : best;
        }
        peak.top = rises ? best : peak.top;
    }

    Values m_raw;
    Values m_smooth;
    std::int64_t m_n;
};

inline double sixDigits(double value) {
    char text[40];
    std::snprintf(text, sizeof text, "%.6g", value);
    return std::strtod(text, nullptr);
}

inline Stages grade(const Curve& curve) {
    const Values& rawX = curve.x;
    Stages stages;
    double startX = 0;
    std::size_t start = 0;
    for (std::size_t i = 0; i < rawX.size() && start == 0; ++i) {
        if (rawX[i] > 0.1 * rawX.back() && isLowest(curve.y, static_cast<std::int64_t>(i))) {
            start = i;
            startX = rawX[i];
        }
    }
    stages["start"] = {static_cast<double>(start), startX};
    const auto [cutX, y] = extract(rawX, curve.y, startX, 0.9 * rawX.back());
    stages["extracted_x"] = cutX;
    stages["extracted_y"] = y;
    const auto n = y.size();
    const double step = (cutX.back() - cutX.front()) / static_cast<double>(n);
    Values x;
    std::int64_t sum = 0;
    for (std::size_t i = 0; i < n; ++i) {
        x.push_back(static_cast<double>(i) * step + cutX.front());
        sum = toInt32(static_cast<double>(sum) + y[i]);
    }
    stages["even_x"] = x;
    const auto mean =
        static_cast<std::int32_t>(static_cast<std::uint32_t>(static_cast<std::uint64_t>(sum) / n));
    stages["mean"] = {static_cast<double>(mean)};
    const double sensitivity = sixDigits(curve.sensitivity);
    const double width = 0.1 * static_cast<double>(n);
    const Values smooth = smoothed(y, sensitivity * width);
    stages["smoothed"] = smooth;
    const Detector detector(x, y, smooth);
    stages["second_derivative"] = detector.second;
    Values& detected = stages["detected"];
    Values& peaks = stages["peaks"];
    for (const Peak& peak : detector.peaks()) {
        const double topX = at(x, peak.top);
        const double topY = at(y, peak.top);
        Values place;
        for (const std::int64_t index : {peak.left.index, peak.top, peak.right.index}) {
            place.push_back(static_cast<double>(index));
        }
        place.insert(place.end(), {double(peak.left.end), double(peak.right.end), topX, topY, 0});
        detected.insert(detected.end(), place.begin(), place.end());
        const double left = at(y, peak.left.index);
        const double right = at(y, peak.right.index);
        const double low = right < left ? right : left;
        const double high = right < left ? left : right;
        if (startX * 1.1 > topX || curve.coelution > (topY - low) / (high - low)) {
            continue;
        }
        place.back() = static_cast<double>(mean) * curve.height > topY ? 3 : 1;
        peaks.insert(peaks.end(), place.begin(), place.end());
    }
    const std::size_t count = peaks.size() / 8;
    stages["quality"] = {count == 1 ? peaks.back() : static_cast<double>(count)};
    return stages;
}

/// A signal that is asked for values between its points, one after the other.
class Evaluator {
public:
    Evaluator(const Curve& curve, int order) : m_x(curve.x), m_y(curve.y), m_order(order) {}

    double operator()(double x) {
        const std::size_t n = m_x.size();
        if (!m_asked) {
            m_asked = true;
            m_last = m_x.front();
        }
        if (x > m_x.back()) {
            return m_y.back();
        }
        if (x < m_x.front()) {
            return m_y.front();
        }
        std::size_t i = std::min(m_index, n - 1);
        while (x < m_last && x < m_x[i] && i != 0) {
            --i;
        }
        if (x > m_last) {
            while (i < n && m_x[i] < x) {
                ++i;
            }
            i -= i < n ? 1 : 0;
        }
        m_index = i;
        m_last = x;
        return m_order == 1 ? linear(x, i) : quadratic(x, i);
    }

private:
    double line(double x, std::size_t a, std::size_t b) const {
        const double slope = (m_y[b] - m_y[a]) / (m_x[b] - m_x[a]);
        return x * slope + (m_y[b] - slope * m_x[b]);
    }
    double linear(double x, std::size_t i) const {
        const std::size_t n = m_x.size();
        if (i < n && x == m_x[i]) {
            return m_y[i];
        }
        const bool isInside = i < n - 1;
        if (isInside && x == m_x[i + 1]) {
            return m_y[i + 1];
        }
        if (n == 2 && m_x[0] != m_x[1]) {
            return line(x, 0, 1);
        }
        if (isInside && m_x[i] == m_x[i + 1]) {
            throw Refused{"problem in interpolateLinear"};
        }
        return isInside ? line(x, i, i + 1) : m_y.back();
    }
    double parabola(double x, std::size_t a) const {
        const double x0 = m_x[a];
        const double x1 = m_x[a + 1];
        const double x2 = m_x[a + 2];
        if (x0 == x1 || x0 == x2 || x1 == x2) {
            throw Refused{"3 distinct points"};
        }
        const double d1 = (m_y[a + 1] - m_y[a]) / (x1 - x0);
        const double d2 = (m_y[a + 2] - m_y[a + 1]) / (x2 - x1);
        const double dd = (d2 - d1) / (x2 - x0);
        const double u = x - x0;
        return dd * u * (x - x1) + u * d1 + m_y[a];
    }
    double quadratic(double x, std::size_t i) const {
        const std::size_t n = m_x.size();
        if (n == 2) {
            return line(x, 0, 1);
        }
        return n < 3 ? m_y.back() : parabola(x, std::min(i, n - 3));
    }

    Values m_x;
    Values m_y;
    int m_order;
    bool m_asked = false;
    double m_last = 0;
    std::size_t m_index = 0;
};

} // namespace plainengine

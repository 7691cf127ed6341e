#include "TViewRange.h"

#include <algorithm>
#include <cmath>

namespace TechPlot {

namespace {

constexpr double thinnestPart = 1e-4;
constexpr double roomBelow = 0.03;
constexpr double roomAbove = 0.10;

struct Span {
    double low;
    double high;
    double length() const { return high - low; }
};

bool isFinite(const QRectF& rect) {
    return std::isfinite(rect.left()) && std::isfinite(rect.top()) && std::isfinite(rect.width()) &&
           std::isfinite(rect.height());
}

// A span of a single value becomes one around it that an axis can show.
Span opened(Span span) {
    if (span.length() > std::abs(span.low) * 1e-9 && span.length() > 0)
        return span;
    const double half = std::max(0.5, std::abs(span.low) * 0.05);
    return {span.low - half, span.high + half};
}

Span within(Span part, Span whole) {
    if (part.low > part.high)
        std::swap(part.low, part.high);
    const double length = std::clamp(part.length(), whole.length() * thinnestPart, whole.length());
    if (length >= whole.length())
        return whole;
    const double middle = part.low + part.length() / 2;
    const double low = std::clamp(middle - length / 2, whole.low, whole.high - length);
    return {low, low + length};
}

Span scaled(Span span, double factor, double centre) {
    return {centre - (centre - span.low) * factor, centre + (span.high - centre) * factor};
}

Span timeOf(const QRectF& rect) {
    return {rect.left(), rect.left() + rect.width()};
}

Span signalOf(const QRectF& rect) {
    return {rect.top(), rect.top() + rect.height()};
}

QRectF rectOf(Span time, Span signal) {
    return {time.low, signal.low, time.length(), signal.length()};
}

} // namespace

void TViewRange::setHome(const QRectF& bounds) {
    if (!isFinite(bounds))
        return;
    const bool wasHome = isHome();
    const Span time = opened(timeOf(bounds));
    const Span signal = opened(signalOf(bounds));
    const Span roomy{signal.low - roomBelow * signal.length(), signal.high + roomAbove * signal.length()};
    m_home = rectOf(time, roomy);
    if (wasHome) {
        reset();
    } else {
        show(m_shown);
    }
}

void TViewRange::show(const QRectF& part) {
    if (!isFinite(part))
        return;
    const Span time = within(timeOf(part), timeOf(m_home));
    const Span signal = within(signalOf(part), signalOf(m_home));
    const QRectF inside = rectOf(time, signal);
    m_shown = inside.size() == m_home.size() ? m_home : inside;
}

void TViewRange::showTime(double from, double to) {
    show(QRectF(std::min(from, to), m_shown.top(), std::abs(to - from), m_shown.height()));
}

void TViewRange::zoomTime(double factor, double centre) {
    if (factor > 0)
        show(rectOf(scaled(timeOf(m_shown), factor, centre), signalOf(m_shown)));
}

void TViewRange::zoomSignal(double factor, double centre) {
    if (factor > 0)
        show(rectOf(timeOf(m_shown), scaled(signalOf(m_shown), factor, centre)));
}

void TViewRange::move(double right, double up) {
    show(m_shown.translated(right * m_shown.width(), up * m_shown.height()));
}

} // namespace TechPlot

#include "TPalette.h"

#include <QMap>

#include <cmath>

namespace {

constexpr double firstValue = 1.0;
constexpr double lastValue = 3.0;

// All living palettes under their name, the latest last.
QMap<QString, QList<const TPalette*>>& registry() {
    static QMap<QString, QList<const TPalette*>> palettes;
    return palettes;
}

QColor mixed(const QColor& from, const QColor& to, double share) {
    const auto part = [share](int a, int b) { return static_cast<int>(std::lround(a + (b - a) * share)); };
    return {part(from.red(), to.red()), part(from.green(), to.green()), part(from.blue(), to.blue()),
            part(from.alpha(), to.alpha())};
}

} // namespace

TPalette::TPalette(const QList<QColor>& colors, const QString& name) : m_colors(colors), m_name(name) {
    registry()[m_name].append(this);
}

TPalette::~TPalette() {
    const auto entry = registry().find(m_name);
    entry->removeOne(this);
    if (entry->isEmpty()) {
        registry().erase(entry);
    }
}

QColor TPalette::colorAt(double value) const {
    if (m_colors.isEmpty()) {
        return {};
    }
    if (std::isnan(value) || value >= lastValue) {
        return m_colors.last();
    }
    if (value <= firstValue || m_colors.size() == 1) {
        return m_colors.first();
    }
    const double place = (value - firstValue) / (lastValue - firstValue) * (m_colors.size() - 1);
    const auto below = static_cast<int>(place); // below the last stop, as value is below the last value
    return mixed(m_colors.at(below), m_colors.at(below + 1), place - below);
}

const TPalette* TPalette::find(const QString& name) {
    const QList<const TPalette*> palettes = registry().value(name);
    return palettes.isEmpty() ? nullptr : palettes.last();
}

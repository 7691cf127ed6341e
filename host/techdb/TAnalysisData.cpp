#include "TAnalysisData.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>

namespace {

QString translated(const char* english, const char* french) {
    return QCoreApplication::translate("TAnalysisData", english, french);
}

/// The place of the first value that is not finite, from 0; the size if all are.
std::size_t firstNotFinite(const std::vector<float>& values) {
    const auto found =
        std::find_if(values.begin(), values.end(), [](float value) { return !std::isfinite(value); });
    return static_cast<std::size_t>(found - values.begin());
}

bool sameBits(const std::vector<float>& one, const std::vector<float>& other) {
    return one.size() == other.size() &&
           (one.empty() || std::memcmp(one.data(), other.data(), one.size() * sizeof(float)) == 0);
}

} // namespace

TAnalysisData::TAnalysisData(std::vector<float> x, std::vector<float> y)
    : m_x(std::move(x)), m_y(std::move(y)) {}

int TAnalysisData::dataSize() const {
    return static_cast<int>(std::min({m_x.size(), m_y.size(), std::size_t{maximumPoints}}));
}

bool TAnalysisData::equals(const TAnalysisData& other) const {
    return sameBits(m_x, other.m_x) && sameBits(m_y, other.m_y);
}

QString TAnalysisData::whyUnusable() const {
    if (m_x.size() != m_y.size()) {
        return translated("it has %1 abscissae and %2 ordinates", "elle a %1 abscisses et %2 ordonnées")
            .arg(m_x.size())
            .arg(m_y.size());
    }
    if (m_x.empty()) {
        return translated("it has no points", "elle n'a aucun point");
    }
    if (m_x.size() > std::size_t{maximumPoints}) {
        return translated("it has more than %1 points", "elle a plus de %1 points").arg(maximumPoints);
    }
    const std::size_t notFinite = std::min(firstNotFinite(m_x), firstNotFinite(m_y));
    if (notFinite < m_x.size()) {
        return translated("point %1 holds a value that is no finite number",
                          "le point %1 contient une valeur qui n'est pas un nombre fini")
            .arg(notFinite + 1);
    }
    const bool oneAbscissa =
        std::all_of(m_x.begin(), m_x.end(), [first = m_x.front()](float value) { return value == first; });
    if (oneAbscissa) {
        return translated("all its points have the same abscissa", "tous ses points ont la même abscisse");
    }
    return {};
}

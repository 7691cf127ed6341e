#include "DialColumns.h"

#include "SliderScale.h"

#include <algorithm>

namespace {

constexpr int mostColumns = 80; // two pixels each at least

} // namespace

DialColumns::DialColumns(const SliderScale& scale)
    : m_width(std::max(1, (scale.lastPosition() + mostColumns - 1) / mostColumns)),
      m_lastPosition(scale.lastPosition()) {
    for (int position = 0; position < m_lastPosition; position += m_width) {
        m_edges.push_back(scale.value(position));
    }
    m_edges.push_back(scale.value(m_lastPosition));
}

double DialColumns::start(int column) const {
    return static_cast<double>(column) * m_width / m_lastPosition;
}

double DialColumns::end(int column) const {
    return static_cast<double>(std::min((column + 1) * m_width, m_lastPosition)) / m_lastPosition;
}

int DialColumns::columnOfStepTo(std::size_t position) const {
    return (static_cast<int>(position) - 1) / m_width;
}

#include "TData.h"

#include <algorithm>
#include <cmath>

namespace TechPlot {

TData::TData(int count, float* x, float* y) : m_count(std::max(count, 0)), m_x(x), m_y(y) {
    if (!m_x || !m_y)
        m_count = 0;
}

void TData::setColor(float* color) {
    if (color != m_color.get())
        m_color.reset(color);
}

void TData::setText(QString* text) {
    if (text != m_text.get())
        m_text.reset(text);
}

bool TData::isDrawable(int index) const {
    return index >= 0 && index < m_count && std::isfinite(m_x[static_cast<std::size_t>(index)]) &&
           std::isfinite(m_y[static_cast<std::size_t>(index)]);
}

} // namespace TechPlot

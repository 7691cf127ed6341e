#include "TStylePlotter.h"

#include <algorithm>
#include <cmath>

namespace TechPlot {

void TStylePlotter::setLineThickness(const double& thickness) {
    if (!std::isnan(thickness))
        m_thickness = std::clamp(thickness, 0.5, 20.0);
}

} // namespace TechPlot

#pragma once

#include <optional>

namespace TechPlot {

/// The user's settings for the look of curves.
struct TPlotSettings {
    bool gridVisible = true;             ///< key "techplot/grid"
    std::optional<double> lineThickness; ///< key "techplot/lineThickness"; none chosen as a rule

    /// As they are stored at this moment. Takes a look at the disk: not for each of a thousand curves.
    static TPlotSettings read();
};

} // namespace TechPlot

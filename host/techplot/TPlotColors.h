#pragma once

#include <QColor>
#include <QPalette>

namespace TechPlot {

/// Colours that can be told from what lies behind them.
class TPlotColors {
public:
    /// `color` made darker or lighter, away from `background`, until its contrast is at least 3 to 1, the
    /// least for lines and signs by the common rules of accessibility. Hue and saturation stay.
    static QColor readable(const QColor& color, const QColor& background);

    /// The ratio of the two colours' luminances, 1 to 21.
    static double contrast(const QColor& one, const QColor& other);

    /// What plots are drawn with on paper: black on white, whatever the screen looks like.
    static QPalette paper();
};

} // namespace TechPlot

#pragma once

#include "TNode.h"

namespace TechPlot {

class TData;

/// Draws a sampled curve. Points whose abscissa or ordinate isn't finite are left out, and a line breaks
/// there.
class VKPlotterSignal : public TNode {
public:
    enum TypeSignal {
        Dots = 0,   ///< a dot for each sample
        Sticks = 1, ///< a line from zero to each sample
        Line = 2    ///< samples joined in their order
    };

    VKPlotterSignal();
    ~VKPlotterSignal() override;

    void setType(TypeSignal type) { m_type = type; }
    TypeSignal type() const { return m_type; }

    /// Takes the data over and frees what it had before. Null is no data.
    void setRawData(TData* data);

    /// The data, still the plotter's: its values may be written, then `initMinMaxXYZC` and `refreshDraw`
    /// bring them to the screen. Null when there is none.
    TData* rawData() { return m_data.get(); }
    const TData* rawData() const { return m_data.get(); }

    /// Takes the line thickness from the user's settings (key "techplot/lineThickness").
    void settingRead();

    /// Has the data measured anew when the bounds are next asked for: a curve that nobody looks at isn't.
    /// Due after each change of the values; `setRawData` does it itself.
    void initMinMaxXYZC();

    QRectF bounds() const override;
    bool hasPoints() const override;
    std::unique_ptr<QwtPlotItem> makeItem() const override;

    /// The sample nearest in time that can be drawn; -1 when there is none.
    int nearestSample(double time) const;

private:
    void measure() const;

    std::unique_ptr<TData> m_data;
    TypeSignal m_type = Line;
    mutable QRectF m_bounds;
    mutable bool m_hasPoints = false;
    mutable bool m_measured = false;
};

} // namespace TechPlot

#pragma once

#include "TNode.h"

class TPalette;

namespace TechPlot {

class TData;

/// Marks points of a curve. The colour values of its data choose each marker's colour, through the palette,
/// and its shape, so that who doesn't see the colours can tell the markers too. A text of the data stands
/// above its marker. Points that aren't finite are left out.
class VKPlotterPeakIndexation : public TNode {
public:
    enum class Shape { Circle, Square, Diamond };

    /// Takes the data over; null is no points.
    explicit VKPlotterPeakIndexation(TData* data);
    ~VKPlotterPeakIndexation() override;

    void setColorPen(const QColor& color) { getStyle()->setColorPen(color); }

    /// The fill of markers for which there is no palette or no finite colour value.
    void setColorBrush(const QColor& color) { getStyle()->setColorBrush(color); }

    /// The diameter of a marker in typographic points, 1 to 72; what isn't a number is ignored.
    void setPointSize(double size);
    double pointSize() const { return m_pointSize; }

    void setPointVisible(bool visible) { m_pointVisible = visible; }
    bool isPointVisible() const { return m_pointVisible; }

    /// The palette stays its maker's and must outlive the plotter. Null is none.
    void setPalette(TPalette* palette) { m_palette = palette; }

    const TData* data() const { return m_data.get(); }

    /// The fill of the marker of one point, before it is fitted to the background.
    QColor markerColor(int index) const;

    /// Value 1 is a circle, 3 a square, any other and none a diamond.
    Shape markerShape(int index) const;

    QRectF bounds() const override { return m_bounds; }
    bool hasPoints() const override { return m_hasPoints; }
    std::unique_ptr<QwtPlotItem> makeItem() const override;

private:
    bool hasColor(int index) const;

    std::unique_ptr<TData> m_data;
    TPalette* m_palette = nullptr;
    QRectF m_bounds;
    double m_pointSize = 7.0;
    bool m_hasPoints = false;
    bool m_pointVisible = true;
};

} // namespace TechPlot

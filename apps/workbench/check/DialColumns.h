#pragma once

#include <cstddef>
#include <vector>

class SliderScale;

/// The positions of a slider in columns of equal width, few enough to be seen beside each other: what lies
/// between two positions lies in one column. A column's edges are positions; the last one may be narrower.
class DialColumns {
public:
    explicit DialColumns(const SliderScale& scale);

    int count() const { return static_cast<int>(m_edges.size()) - 1; }
    /// The values that the slider shows at a column's edges.
    double lower(int column) const { return m_edges[static_cast<std::size_t>(column)]; }
    double upper(int column) const { return m_edges[static_cast<std::size_t>(column) + 1]; }
    /// The edges' values, one more than columns; ascending.
    const std::vector<double>& edges() const { return m_edges; }
    /// A column's edges as shares of the slider's way.
    double start(int column) const;
    double end(int column) const;

    /// The column in which the step from the position before to this one lies.
    int columnOfStepTo(std::size_t position) const;

private:
    int m_width;
    int m_lastPosition;
    std::vector<double> m_edges;
};

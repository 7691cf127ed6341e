#pragma once

#include <QString>

#include <vector>

/// The curve of an analysis: abscissae and ordinates as they were measured, one of each per point.
class TAnalysisData {
public:
    /// More points than any instrument gives, few enough for one cell of a database.
    static constexpr int maximumPoints = 100'000'000;

    /// Takes anything; `whyUnusable` judges it.
    TAnalysisData(std::vector<float> x, std::vector<float> y);

    /// The arrays live as long as this object. Null without points.
    float* dataX() { return m_x.data(); }
    float* dataY() { return m_y.data(); }
    /// Points that have both values.
    int dataSize() const;

    const std::vector<float>& x() const { return m_x; }
    const std::vector<float>& y() const { return m_y; }

    /// Why no module could work with this curve, in words that follow a colon; empty if all is well. A
    /// usable curve has as many abscissae as ordinates, at most `maximumPoints`, all of them finite, and two
    /// abscissae that differ.
    QString whyUnusable() const;

    /// Whether the other curve has the same values, bit for bit.
    bool equals(const TAnalysisData& other) const;

private:
    std::vector<float> m_x;
    std::vector<float> m_y;
};

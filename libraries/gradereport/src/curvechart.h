#pragma once

#include "gradereport/gradekind.h"
#include "gradereport/graderecord.h"
#include "gradereport/language.h"

#include "chartscale.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace gradereport {

/// Draws one graded file as an inline SVG: raw and smoothed signal, the ranges left out of the grading
/// shaded, the height threshold, the peaks with their valleys and the removed candidates. The looks are style
/// classes of the page. At most 24 peaks and 24 removed candidates are drawn, the highest first; a line under
/// the axis tells what is not drawn. The record must outlive the chart.
class CurveChart {
public:
    CurveChart(const GradeRecord& record, Language language);

    /// `labelledBy` holds the ids of the elements that describe the drawing.
    [[nodiscard]] std::string svg(std::string_view labelledBy) const;

private:
    [[nodiscard]] std::string axes() const;
    [[nodiscard]] std::string leftOut() const;
    [[nodiscard]] std::string shade(double from, double to, const std::string& title) const;
    [[nodiscard]] std::string curves() const;
    [[nodiscard]] std::string threshold() const;
    [[nodiscard]] std::string valleys() const;
    [[nodiscard]] std::string removedCandidates() const;
    [[nodiscard]] std::string peaks() const;
    [[nodiscard]] std::string peakLabels() const;
    [[nodiscard]] std::string notDrawn() const;
    [[nodiscard]] GradeKind markerOf(const ReportedPeak& peak) const;

    [[nodiscard]] std::string removalTitle(const RemovedPeak& candidate) const;
    [[nodiscard]] std::string say(const char* english, const char* french) const {
        return said(m_language, english, french);
    }

    const GradeRecord& m_record;
    Language m_language;
    double m_threshold;
    bool m_thresholdFits = false;
    ChartScale m_x;
    ChartScale m_y;
};

} // namespace gradereport

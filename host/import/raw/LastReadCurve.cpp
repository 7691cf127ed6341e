#include "LastReadCurve.h"

#include <utility>

LastReadCurve& LastReadCurve::returnMe() {
    static LastReadCurve last;
    return last;
}

void LastReadCurve::remember(TAnalysisData curve, AnalysisOrigin origin) {
    m_curve = std::move(curve);
    m_origin = std::move(origin);
}

std::optional<AnalysisOrigin> LastReadCurve::originOf(const TAnalysisData& curve) const {
    return m_curve && m_curve->equals(curve) ? std::make_optional(m_origin) : std::nullopt;
}

#pragma once

#include "AnalysisOrigin.h"
#include "TAnalysisData.h"

#include <optional>

/// The raw file that was read last and the curve it gave: what `ImportRockEvalVI` leaves for
/// `VKDatabaseImport`, between which stand modules that pass on points alone. Whoever stores a curve asks
/// here where it comes from, and is answered if it is this one, bit for bit. Interface thread only.
class LastReadCurve {
public:
    static LastReadCurve& returnMe();

    void remember(TAnalysisData curve, AnalysisOrigin origin);
    /// Nothing for another curve.
    std::optional<AnalysisOrigin> originOf(const TAnalysisData& curve) const;

private:
    LastReadCurve() = default;

    std::optional<TAnalysisData> m_curve;
    AnalysisOrigin m_origin;
};

#pragma once

#include "sourcerockqaqc/grading.h"

#include <optional>
#include <string>
#include <vector>

namespace gradereport {

using Grading = algo::sr_qaqc::Grading<double, std::vector<double>>;
using EngineSettings = algo::sr_qaqc::SourceRockQAQCSettings<double, std::vector<double>>;

/// Where a setting would give another quality code, the other settings left as they are.
struct NearestChange {
    std::string setting; ///< "height" or "coelution"
    double value = 0.0;  ///< in hundredths, the first behind the change
    bool upward = false; ///< whether the value lies above the present one
    int quality = 0;     ///< the code at that value
};

/// The nearest change by height (0 to 5) or coelution (0.2 to 2), measured as a share of the present
/// value; nothing where no value in these ranges gives another code. Sensitivity is left out: it changes
/// the smoothing, so only grading again would tell.
[[nodiscard]] std::optional<NearestChange> nearestChange(const Grading& grading,
                                                         const EngineSettings& settings);

} // namespace gradereport

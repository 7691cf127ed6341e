#pragma once

#include "sourcerockqaqc/grading.h"

#include <vector>

using Values = std::vector<double>;
using Grading = algo::sr_qaqc::Grading<double, Values>;
using Settings = algo::sr_qaqc::SourceRockQAQCSettings<double, Values>;

/// The last stages of a grading once more, without the minor peaks: what the settings make of the peaks of
/// `grading.late` that rise to at least `share` of the greatest rise. The grading stays as it is. Raises for
/// a share outside of [0, 1].
Grading::ChromatogramPointer withoutMinorPeaks(const Grading& grading, const Settings& settings,
                                               double share);

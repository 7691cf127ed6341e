#pragma once

#include "sourcerockqaqc/srqaqcmngr.h"

#include <vector>

/// The engine's classes as this module uses them.
namespace Vorn::SourceRockQAQC {

using Values = std::vector<double>;
using Signal1D = algo::core::Signal1D<double, Values>;
using Chromatogram = algo::chromato::Chromatogram<double, Values>;
using AnalysisData = algo::sr_qaqc::AnalysisData<double, Values>;
using SourceRockQAQCSettings = algo::sr_qaqc::SourceRockQAQCSettings<double, Values>;
using SourceRockQAQCMgr = algo::sr_qaqc::SourceRockQAQCMgr<double, Values>;

} // namespace Vorn::SourceRockQAQC

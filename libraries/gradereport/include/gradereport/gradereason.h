#pragma once

#include "gradereport/nearestchange.h"

#include <string>

namespace gradereport {

/// One sentence in English that tells a chemist why a curve has its grade, with the numbers that
/// decided: how many peaks stand and where, the top of a lone one against the height threshold, which
/// candidates fell to coelution, and the nearest setting that would give another grade.
[[nodiscard]] std::string gradeReason(const Grading& grading, const EngineSettings& settings);

/// The grade as a word, also where the engine has none: "good", "double", "flat", "no grade".
[[nodiscard]] std::string gradeWord(int quality);

} // namespace gradereport

#pragma once

#include "gradereport/language.h"
#include "gradereport/nearestchange.h"

#include <string>

namespace gradereport {

/// One sentence that tells a chemist why a curve has its grade, with the numbers that decided: how many
/// peaks stand and where, the top of a lone one against the height threshold, which candidates fell to
/// coelution, and the nearest setting that would give another grade. UTF-8; in French with a decimal comma.
[[nodiscard]] std::string gradeReason(const Grading& grading, const EngineSettings& settings,
                                      Language language = Language::english);

/// The grade as a word, also where the engine has none: "good", "double", "flat", "no grade"; in French as
/// of a curve: "bonne", "double", "plate", "sans évaluation".
[[nodiscard]] std::string gradeWord(int quality, Language language = Language::english);

} // namespace gradereport

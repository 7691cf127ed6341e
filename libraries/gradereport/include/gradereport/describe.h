#pragma once

#include "gradereport/graderecord.h"
#include "gradereport/language.h"
#include "gradereport/nearestchange.h"

namespace gradereport {

/// Which curves a record carries; drawing needs them, a table doesn't.
enum class Curves { leftOut, included };

/// The settings by the names that reports give them.
[[nodiscard]] GradeSettings settingsOf(const EngineSettings& settings);

/// All that a grading says, as plain values: everything but the file's name, digest and warnings.
/// `raw` is the signal that was graded; the language is that of the reason.
[[nodiscard]] GradeRecord describe(const Grading::Signal& raw, const Grading& grading,
                                   const EngineSettings& settings, Curves curves,
                                   Language language = Language::english);

} // namespace gradereport

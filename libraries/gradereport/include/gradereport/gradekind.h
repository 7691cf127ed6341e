#pragma once

#include "gradereport/graderecord.h"
#include "gradereport/language.h"

#include <string>
#include <string_view>

namespace gradereport {

/// What became of a file, in the order in which counts are shown.
enum class GradeKind { good, twin, flat, none, other, failed };

inline constexpr int gradeKindCount = 6;

/// The kind that a quality code stands for; never `failed`.
[[nodiscard]] GradeKind kindOfQuality(int quality);

/// The kind of a graded file, from its quality code; never `failed`.
[[nodiscard]] GradeKind kindOf(const GradeRecord& record);

/// The word a person reads: "good", "double", "flat", "no peak", "other", "failed".
[[nodiscard]] std::string_view kindWord(GradeKind kind, Language language = Language::english);

/// The peak with the greatest ordinate, the first of several; null if no peak stands.
[[nodiscard]] const ReportedPeak* highestPeak(const GradeRecord& record);

/// Last component of a path; the whole path if it ends in a separator.
[[nodiscard]] std::string_view fileNameOf(std::string_view path);

} // namespace gradereport

#pragma once

#include "gradereport/graderecord.h"
#include "gradereport/language.h"

#include <cstddef>
#include <string>

namespace gradereport {

/// Row of the report's table for a graded file; `number` names the card it leads to.
[[nodiscard]] std::string tableRow(const GradeRecord& record, std::size_t number, Language language);

/// Row of the report's table for a file that could not be graded.
[[nodiscard]] std::string tableRow(const FailureRecord& failure, std::size_t number, Language language);

/// The card of a graded file: name, grade, drawing, reason, warnings and figures.
[[nodiscard]] std::string curveCard(const GradeRecord& record, std::size_t number, Language language);

} // namespace gradereport

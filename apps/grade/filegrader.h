#pragma once

#include "gradereport/describe.h"
#include "gradereport/graderecord.h"

#include <memory>
#include <optional>
#include <string>
#include <variant>

namespace grade {

/// A graded file: what is said about it, and the raw signal behind that.
struct GradedFile {
    gradereport::GradeRecord record;
    std::shared_ptr<const gradereport::Grading::Signal> signal;
};

using Outcome = std::variant<GradedFile, gradereport::FailureRecord>;

/// A curve of more points than this is no pyrolysis curve, and smoothing it would take minutes.
constexpr std::size_t maxPoints = 200000;

/// Reads one raw file and grades it. Whatever goes wrong becomes a failure with a sentence, never an
/// exception.
[[nodiscard]] Outcome gradeFile(const std::string& path, const gradereport::EngineSettings& settings,
                                gradereport::Curves curves);

} // namespace grade

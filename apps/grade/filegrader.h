#pragma once

#include "doneinputs.h"
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

/// A file whose bytes were graded before.
struct DoneBefore {};

using Outcome = std::variant<GradedFile, gradereport::FailureRecord, DoneBefore>;

/// A curve of more points than this is no pyrolysis curve, and smoothing it would take minutes.
constexpr std::size_t maxPoints = 200000;

/// Reads one raw file and grades it, unless its bytes are among those that are `done`. Whatever goes wrong
/// becomes a failure with a sentence, never an exception. The language is that of all sentences.
[[nodiscard]] Outcome gradeFile(const std::string& path, const gradereport::EngineSettings& settings,
                                gradereport::Curves curves, const DoneInputs& done = {},
                                gradereport::Language language = gradereport::Language::english);

} // namespace grade

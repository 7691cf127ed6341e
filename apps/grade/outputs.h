#pragma once

#include "filegrader.h"
#include "options.h"

#include <cstddef>
#include <iosfwd>
#include <memory>
#include <vector>

namespace grade {

/// Something that takes the outcome of each file in turn.
class Output {
public:
    virtual ~Output() = default;
    virtual void add(const GradedFile& file) = 0;
    virtual void addFailure(const gradereport::FailureRecord& failure) = 0;
    /// What stands at the end; called once.
    virtual void finish() = 0;

    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;

protected:
    Output() = default;
};

/// How the table looks on the stream it goes to.
struct Terminal {
    bool colour = false;
    std::size_t width = 0; ///< columns, 0 for lines of any length
};

/// The output in the chosen format.
[[nodiscard]] std::unique_ptr<Output> formattedOutput(Format format, std::ostream& out,
                                                      const Terminal& terminal);

/// The HTML report, written to `out` when it is finished.
[[nodiscard]] std::unique_ptr<Output> reportOutput(const gradereport::EngineSettings& settings,
                                                   gradereport::Language language, std::ostream& out);

/// The curves and grades for machine learning.
[[nodiscard]] std::unique_ptr<Output> machineLearningOutput(std::ostream& out);

/// What these rest on: version, settings and digests of all that was graded, written when it is finished.
[[nodiscard]] std::unique_ptr<Output> originOutput(const gradereport::EngineSettings& settings,
                                                   std::ostream& out);

} // namespace grade

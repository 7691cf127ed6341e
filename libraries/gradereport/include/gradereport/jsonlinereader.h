#pragma once

#include "gradereport/graderecord.h"

#include <string>
#include <string_view>

namespace gradereport {

/// What a line is to one who looks for gradings in it.
enum class LineKind {
    grade,   ///< a graded file
    failure, ///< a file that could not be graded
    other    ///< nothing that `JsonLines` writes
};

/// What tells, of a line of a graded file, which grading of which bytes it holds. All but `kind` is empty or
/// default for lines of other kinds.
struct GradeLine {
    LineKind kind = LineKind::other;
    std::string sha256; ///< 64 hexadecimal digits
    GradeSettings settings;
    std::string version;
};

/// Reads a line that `JsonLines` may have written, without its line feed. Members that it doesn't know are
/// passed over. Takes any bytes.
[[nodiscard]] GradeLine readJsonLine(std::string_view line);

/// Whether `text` may be the beginning of a line that `JsonLines` was stopped in.
[[nodiscard]] bool beginsJsonLine(std::string_view text);

} // namespace gradereport

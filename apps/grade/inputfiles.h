#pragma once

#include "gradereport/graderecord.h"

#include <iosfwd>
#include <string>
#include <vector>

namespace grade {

/// The files to grade, and the places where none could be found.
struct InputFiles {
    std::vector<std::string> files; ///< in natural order, each path once
    std::vector<gradereport::FailureRecord> failures;
};

/// Resolves what the user named: a folder stands for all its raw signals (.S00 of either case), also in
/// folders below it; anything else stands for itself; "-" stands for the paths in `standardInput`, one a
/// line. Links to folders are not followed.
[[nodiscard]] InputFiles findInputFiles(const std::vector<std::string>& paths, std::istream& standardInput);

} // namespace grade

#pragma once

#include "gradereport/graderecord.h"
#include "gradereport/language.h"
#include "pathlist.h"

#include <string>
#include <vector>

namespace grade {

/// The files to grade, and the places where none could be found.
struct InputFiles {
    std::vector<std::string> files; ///< in natural order, each path once
    std::vector<gradereport::FailureRecord> failures;
};

/// Resolves one path: a folder stands for all its raw signals (.S00 of either case), also in folders below
/// it; anything else stands for itself. Links to folders are not followed. Failures are told in the language.
[[nodiscard]] InputFiles filesAt(const std::string& path,
                                 gradereport::Language language = gradereport::Language::english);

/// Resolves all that the user named, each as `filesAt` does; "-" stands for the paths that `listed` gives.
[[nodiscard]] InputFiles findInputFiles(const std::vector<std::string>& paths, PathList& listed,
                                        gradereport::Language language = gradereport::Language::english);

} // namespace grade

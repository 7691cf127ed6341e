#pragma once

#include "temporaryfolder.h"

#include <sys/wait.h>

#include <cstdlib>
#include <string>

/// What a script said and how it ended.
struct ShellResult {
    int status = 0; ///< exit status, -1 where it was killed
    std::string out;
    std::string err;
};

/// Runs a script in bash, inside `folder`, where its streams are kept as well. It finds the grader as
/// `vorn-grade` and the example curves in `$examples`.
inline ShellResult shell(const TemporaryFolder& folder, const std::string& script) {
    const std::string environment =
        "export LC_ALL=C PATH=\"" VORN_GRADE_FOLDER ":$PATH\" examples=\"" VORN_EXAMPLES "\"\n";
    const std::string file =
        folder.write("script", environment + "cd \"" + folder.path() + "\" || exit 99\n" + script + "\n");
    const std::string streams =
        " >\"" + folder.path("script.out") + "\" 2>\"" + folder.path("script.err") + "\"";
    const int ended = std::system(("bash \"" + file + "\"" + streams).c_str());
    return {WIFEXITED(ended) ? WEXITSTATUS(ended) : -1, contentOf(folder.path("script.out")),
            contentOf(folder.path("script.err"))};
}

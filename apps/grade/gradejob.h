#pragma once

#include "options.h"
#include "outputs.h"

#include <iosfwd>

namespace grade {

/// The streams of a run, and what is known of the terminal behind them.
struct Console {
    std::istream& in;
    std::ostream& out;
    std::ostream& err;
    Terminal terminal;         ///< of `out`
    bool showProgress = false; ///< whether `err` is a terminal
    int descriptor = -1;       ///< of `out`, -1 where it has none
};

/// Grades all that `options` names and writes all outputs. Returns the exit status: 0 all graded, 1 some
/// file could not be read or some output not be written, 2 a file to write can't be
/// opened or one with earlier grades not be used.
[[nodiscard]] int run(const Options& options, const Console& console);

} // namespace grade

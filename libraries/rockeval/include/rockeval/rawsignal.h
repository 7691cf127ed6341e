#pragma once

#include "rockeval/warning.h"

#include <vector>

namespace rockeval {

/// The pyrolysis curve of the flame-ionisation detector. Both vectors have the same length. As read from
/// a file there is at least one point, every value is finite and within the range of float, and the times
/// ascend strictly, also once they are narrowed to float. The oven's temperature and the CO and CO2
/// columns play no part in a grade and are not kept.
struct PyrolysisCurve {
    std::vector<double> time; ///< seconds
    std::vector<double> fid;  ///< raw detector units
};

/// What a .S00 file gives.
struct RawSignal {
    PyrolysisCurve curve;
    std::vector<Warning> warnings; ///< in the order of the lines, cut off after a hundred
};

} // namespace rockeval

#pragma once

#include "gradereport/nearestchange.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace gradereport {

/// What a detection leaves for the settings coelution and height to decide, in a few numbers: enough to
/// tell the quality code for any of them without grading again, exactly as the engine would.
class Candidates {
public:
    /// Of a useful part whose peaks were detected. Peaks that no criterion of `leastCoelution` or more lets
    /// stand are left out, and the codes hold for such criteria alone.
    Candidates(const Grading& detected, double leastCoelution);

    [[nodiscard]] int quality(double coelution, double height) const;

    /// The positions in `criteria`, which ascend, whose code differs from the one of the position before.
    [[nodiscard]] std::vector<std::size_t> changesByCoelution(const std::vector<double>& criteria,
                                                              double height) const;
    /// The same for ascending factors of the height, the coelution fixed.
    [[nodiscard]] std::vector<std::size_t> changesByHeight(double coelution,
                                                           const std::vector<double>& heights) const;

private:
    struct Candidate {
        double ratio; ///< of the coelution filter
        double top;   ///< ordinate
    };

    std::vector<Candidate> m_candidates;
    std::int32_t m_mean;
};

} // namespace gradereport

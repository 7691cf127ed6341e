#pragma once

namespace algo::sr_qaqc {

/// The three numbers a user can change; every run reads the present ones.
template <class Scalar, class Values>
struct SourceRockQAQCSettings {
    Scalar sensitivity = 0.5;    ///< share of the average peak width used as smoothing mask, inside (0, 1)
    Scalar coelution = 1.25;     ///< criterion of the coelution filter
    Scalar heightCriteria = 2.0; ///< factor on the mean level that a top must reach to be graded 1
};

} // namespace algo::sr_qaqc

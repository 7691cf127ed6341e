#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace gradereport {

/// The three settings a grade depends on.
struct GradeSettings {
    double sensitivity = 0.5; ///< share of the average peak width used as smoothing mask, inside (0, 1)
    double coelution = 1.25;  ///< least ratio of a top's rise to the step between its valleys
    double height = 2.0;      ///< factor on the mean level that the top of a good peak reaches
};

/// A peak that stands after both filters; the indices count samples of the graded signal.
struct ReportedPeak {
    std::size_t left = 0;
    std::size_t top = 0;
    std::size_t right = 0;
    double x = 0.0;   ///< time of the top on the graded signal, seconds
    double y = 0.0;   ///< ordinate of the top
    int category = 1; ///< 1: reaches the height threshold, 3: stays below it
};

/// Why a candidate does not stand.
enum class RemovalCause {
    early,    ///< its top lies less than a tenth above the start
    coelution ///< it rises too little above its valleys
};

/// A candidate that one of the filters removed.
struct RemovedPeak {
    std::size_t top = 0;
    double x = 0.0;
    double y = 0.0;
    RemovalCause cause = RemovalCause::early;
    double ratio = 0.0; ///< the coelution ratio; not finite or negative where the valleys are equal or higher
};

/// A curve to draw: abscissae in seconds and ordinates, of equal length.
struct Curve {
    std::vector<double> x;
    std::vector<double> y;
};

/// All that is said about one graded file, as plain values. Text is UTF-8 where the input was.
struct GradeRecord {
    std::string file;   ///< path as the user gave it
    std::string name;   ///< file name
    std::string sha256; ///< digest of the file's bytes, 64 hexadecimal digits
    std::size_t points = 0;
    std::size_t gradedPoints = 0;
    double start = 0.0; ///< time where the useful range begins, seconds
    int mean = 0;       ///< integer mean level of the graded signal
    int quality = 0;    ///< 0 no peak, 1 good, 2 double, 3 flat, 4 and above a number of peaks
    std::string grade;  ///< "good", "double", "flat" or empty
    std::string reason; ///< one sentence: what decided
    std::vector<ReportedPeak> peaks;
    std::vector<RemovedPeak> removed;
    std::vector<std::string> warnings; ///< what the reader noticed, with line numbers
    GradeSettings settings;
    Curve raw;
    Curve smoothed; ///< covers the graded range only
};

/// A file that could not be graded.
struct FailureRecord {
    std::string file;
    std::string error; ///< one sentence: what happened, where, what to do
};

} // namespace gradereport

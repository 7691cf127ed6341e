#pragma once

#include "gradereport/graderecord.h"

#include <string>

/// A graded file with two peaks, one removed candidate and one warning; its curves rise from 0 to 100 in 101
/// samples.
inline gradereport::GradeRecord sampleRecord() {
    gradereport::GradeRecord record;
    record.file = "runs/a.S00";
    record.name = "a.S00";
    record.sha256 = std::string(60, '0') + "beef";
    record.points = 101;
    record.gradedPoints = 81;
    record.start = 10.5;
    record.mean = 40;
    record.quality = 2;
    record.grade = "double";
    record.reason = "Two peaks stand.";
    record.peaks = {{1, 30, 40, 40.0, 40.25, 3}, {40, 60, 70, 70.1, 90.0, 1}};
    record.removed = {{50, 60.0, 60.0, gradereport::RemovalCause::coelution, 1.125}};
    record.warnings = {"Line 3: no number."};
    for (int i = 0; i <= 100; ++i) {
        record.raw.x.push_back(i);
        record.raw.y.push_back(i);
    }
    record.smoothed.x.assign(record.raw.x.begin() + 10, record.raw.x.end() - 10);
    record.smoothed.y.assign(record.raw.y.begin() + 10, record.raw.y.end() - 10);
    return record;
}

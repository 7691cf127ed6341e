#include "minorpeaks.h"

#include "peakfilterminor.h"

Grading::ChromatogramPointer withoutMinorPeaks(const Grading& grading, const Settings& settings,
                                               double share) {
    const algo::chromato::PeakFilterMinor<double, Values> minor(*grading.late, share);
    return algo::sr_qaqc::judge<double, Values>(minor.apply(grading.late, nullptr), grading.mean, settings);
}

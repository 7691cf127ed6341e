#include "gradereport/describe.h"

#include "chromato/peakfiltercoelution.h"
#include "gradereport/gradereason.h"

#include <algorithm>
#include <iterator>

namespace gradereport {

namespace {

using Peak = Grading::Peak;

std::size_t indexOf(const Peak::Iterator& position) {
    return static_cast<std::size_t>(position->index);
}

ReportedPeak reported(const Peak& peak) {
    return {indexOf(peak.left()), indexOf(peak.top()), indexOf(peak.right()),
            peak.top()->x,        peak.top()->y,       static_cast<int>(peak.category)};
}

RemovedPeak removed(const Peak& peak, RemovalCause cause, double ratio) {
    return {indexOf(peak.top()), peak.top()->x, peak.top()->y, cause, ratio};
}

std::vector<RemovedPeak> allRemoved(const Grading& grading) {
    const algo::chromato::PeakFilterCoelution<double, std::vector<double>> filter(0.0, nullptr);
    std::vector<RemovedPeak> all;
    for (const Peak& peak : grading.early) {
        all.push_back(removed(peak, RemovalCause::early, filter.ratio(peak)));
    }
    for (const auto& coeluted : grading.coeluted) {
        all.push_back(removed(coeluted.peak, RemovalCause::coelution, coeluted.ratio));
    }
    return all;
}

} // namespace

GradeSettings settingsOf(const EngineSettings& settings) {
    return {settings.sensitivity, settings.coelution, settings.heightCriteria};
}

GradeRecord describe(const Grading::Signal& raw, const Grading& grading, const EngineSettings& settings,
                     Curves curves, Language language) {
    GradeRecord record;
    record.points = raw.size();
    record.gradedPoints = grading.even->size();
    record.start = grading.start.x;
    record.mean = grading.mean;
    record.quality = algo::sr_qaqc::qualityCode(*grading.chromatogram);
    record.grade = algo::sr_qaqc::qualityText(record.quality);
    record.reason = gradeReason(grading, settings, language);
    record.settings = settingsOf(settings);
    const auto& peaks = grading.chromatogram->peaks();
    std::transform(peaks.begin(), peaks.end(), std::back_inserter(record.peaks), reported);
    record.removed = allRemoved(grading);
    if (curves == Curves::included) {
        record.raw = {raw.xValues(), raw.yValues()};
        record.smoothed = {grading.smoothed->xValues(), grading.smoothed->yValues()};
    }
    return record;
}

} // namespace gradereport

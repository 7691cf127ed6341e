#include "gradereport/nearestchange.h"

#include "chromato/peakfiltercoelution.h"

#include <algorithm>
#include <cmath>

namespace gradereport {

namespace {

using Values = std::vector<double>;
using CoelutionFilter = algo::chromato::PeakFilterCoelution<double, Values>;

struct Dial {
    const char* name;
    double EngineSettings::*field;
    double lowest;
    double highest;
};

constexpr Dial heightDial{"height", &EngineSettings::heightCriteria, 0.0, 5.0};
constexpr Dial coelutionDial{"coelution", &EngineSettings::coelution, 0.2, 2.0};

/// A peak is cut by a criterion above its threshold and by none at or below it, so the first hundredth
/// on the other side is what a user can set.
double firstHundredth(double threshold, bool upward) {
    const double hundredths = std::floor(threshold * 100.0);
    return (upward ? hundredths + 1.0 : hundredths) / 100.0;
}

double distance(const NearestChange& change, double present) {
    const double difference = std::abs(change.value - present);
    return present > 0.0 ? difference / present : difference;
}

std::vector<double> coelutionThresholds(const Grading& grading) {
    const CoelutionFilter filter(0.0, nullptr);
    std::vector<double> ratios;
    for (const auto& peak : grading.late->peaks()) {
        ratios.push_back(filter.ratio(peak));
    }
    return ratios;
}

/// Only the category of a lone peak shows in the code.
std::vector<double> heightThresholds(const Grading& grading) {
    const auto& peaks = grading.chromatogram->peaks();
    if (peaks.size() != 1 || grading.mean == 0) {
        return {};
    }
    return {peaks.front().top()->y / grading.mean};
}

std::optional<NearestChange> nearestOf(const Dial& dial, std::vector<double> thresholds,
                                       const Grading& grading, const EngineSettings& settings) {
    const double present = settings.*dial.field;
    const auto isNearer = [present](double a, double b) {
        return std::abs(a - present) < std::abs(b - present);
    };
    const auto finite = [](double threshold) { return std::isfinite(threshold); };
    thresholds.erase(std::partition(thresholds.begin(), thresholds.end(), finite), thresholds.end());
    std::sort(thresholds.begin(), thresholds.end(), isNearer);

    const int presentCode = algo::sr_qaqc::qualityCode(*grading.chromatogram);
    for (const double threshold : thresholds) {
        const bool upward = threshold >= present;
        const double value = firstHundredth(threshold, upward);
        if (value < dial.lowest || value > dial.highest) {
            continue;
        }
        EngineSettings changed = settings;
        changed.*dial.field = value;
        const int code = algo::sr_qaqc::qualityCode(
            *algo::sr_qaqc::judge<double, Values>(grading.late, grading.mean, changed));
        if (code != presentCode) {
            return NearestChange{dial.name, value, upward, code};
        }
    }
    return std::nullopt;
}

} // namespace

std::optional<NearestChange> nearestChange(const Grading& grading, const EngineSettings& settings) {
    const auto byHeight = nearestOf(heightDial, heightThresholds(grading), grading, settings);
    const auto byCoelution = nearestOf(coelutionDial, coelutionThresholds(grading), grading, settings);
    if (!byHeight || !byCoelution) {
        return byHeight ? byHeight : byCoelution;
    }
    return distance(*byHeight, settings.heightCriteria) <= distance(*byCoelution, settings.coelution)
               ? byHeight
               : byCoelution;
}

} // namespace gradereport

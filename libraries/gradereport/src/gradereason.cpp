#include "gradereport/gradereason.h"

#include "core/tostring.h"
#include "gradereport/shortestnumber.h"

#include <cmath>
#include <cstddef>

namespace gradereport {

namespace {

using Peak = Grading::Peak;
using algo::core::toString;

constexpr std::size_t listed = 4; // more places than this say nothing to a reader

std::string counted(std::size_t count) {
    static const char* const words[] = {"No", "One", "Two", "Three", "Four"};
    return count < 5 ? words[count] : std::to_string(count);
}

std::string place(const Peak& peak) {
    return fixedNumber(peak.top()->x, 1) + " s (" + toString(peak.top()->y) + ")";
}

std::string coelutedPlace(const Grading::Coeluted& removed) {
    const std::string time = fixedNumber(removed.peak.top()->x, 1) + " s";
    return std::isfinite(removed.ratio) ? time + " (ratio " + fixedNumber(removed.ratio, 2) + ")"
                                        : time + " (below its valleys)";
}

/// "a", "a and b", "a, b and c", "a, b, c, d and 3 more".
template <class Items, class Text>
std::string enumerated(const Items& items, const Text& text) {
    const std::size_t shown = items.size() <= listed ? items.size() : listed;
    std::string list;
    for (std::size_t i = 0; i < shown; ++i) {
        const bool last = i + 1 == items.size();
        list += i == 0 ? "" : (last ? " and " : ", ");
        list += text(items[i]);
    }
    return shown == items.size() ? list : list + " and " + std::to_string(items.size() - shown) + " more";
}

std::string lonePeak(const Grading& grading, const EngineSettings& settings) {
    const Peak& peak = grading.chromatogram->peaks().front();
    const bool good = algo::sr_qaqc::qualityCode(*grading.chromatogram) == 1;
    return "One peak stands, at " + place(peak) + ", and its top " + (good ? "reaches " : "stays below ") +
           toString(settings.heightCriteria) + " × the mean level of " + std::to_string(grading.mean) + " (" +
           toString(grading.mean * settings.heightCriteria) + ")";
}

std::string standing(const Grading& grading, const EngineSettings& settings) {
    const auto& peaks = grading.chromatogram->peaks();
    switch (peaks.size()) {
    case 0:
        return grading.late->peaks().empty() ? "No peak stands, since none was found behind the start"
                                             : "No peak stands";
    case 1:
        return lonePeak(grading, settings);
    case 3:
        return "Three peaks stand, at " + enumerated(peaks, place) + ", which counts as flat";
    default:
        return counted(peaks.size()) + " peaks stand, at " + enumerated(peaks, place) +
               (peaks.size() == 2 ? "" : ", for which there is no grade");
    }
}

std::string coelution(const Grading& grading, const EngineSettings& settings) {
    const auto& removed = grading.coeluted;
    if (removed.empty()) {
        return {};
    }
    return "; " + std::string(removed.size() == 1 ? "a candidate at " : "candidates at ") +
           enumerated(removed, coelutedPlace) + " fell to coelution (limit " + toString(settings.coelution) +
           ")";
}

std::string missingStart(const Grading& grading) {
    return grading.start.x == 0.0 ? "; no start was found, so nothing was cut off at the front" : "";
}

std::string distance(const Grading& grading, const EngineSettings& settings) {
    const auto change = nearestChange(grading, settings);
    if (!change) {
        return "; no height up to 5 and no coelution from 0.2 to 2 would change that";
    }
    return "; with " + change->setting + " at " + fixedNumber(change->value, 2) +
           (change->upward ? " or more" : " or less") + " it would be " + gradeWord(change->quality);
}

} // namespace

std::string gradeWord(int quality) {
    const std::string word = algo::sr_qaqc::qualityText(quality);
    return word.empty() ? "no grade" : word;
}

std::string gradeReason(const Grading& grading, const EngineSettings& settings) {
    return standing(grading, settings) + coelution(grading, settings) + missingStart(grading) +
           distance(grading, settings) + ".";
}

} // namespace gradereport

#pragma once

#include "chromato/chromatogram.h"
#include "chromato/chromatograph.h"
#include "chromato/localminimum.h"
#include "chromato/noisexno.h"
#include "chromato/peakfiltercoelution.h"
#include "chromato/peakfiltercustom.h"
#include "chromato/peaksdetectorxno.h"
#include "core/conversions.h"
#include "core/signal1d.h"
#include "core/signal1disosampling.h"
#include "sourcerockqaqc/srqaqcsettings.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

/// The chain from a raw signal to graded peaks, with every stage in sight.
namespace algo::sr_qaqc {

/// All stages of one grading. The manager keeps the last ones, reports show all of them.
template <class Scalar, class Values>
struct Grading {
    using Signal = core::Signal1D<Scalar, Values>;
    using Peak = chromato::Peak<Scalar, Values>;
    using ChromatogramPointer = std::shared_ptr<chromato::Chromatogram<Scalar, Values>>;

    /// A peak that fell to the coelution filter.
    struct Coeluted {
        Peak peak;
        Scalar ratio; ///< below the criterion; minus infinity for a top below two equal valleys
    };

    core::Point<Scalar, Values> start;       ///< on the raw axis; all zero where no start was found
    std::shared_ptr<const Signal> extracted; ///< the useful range of the raw signal
    std::shared_ptr<const Signal> even;      ///< the same ordinates on an even grid; peaks stand on it
    std::int32_t mean = 0;                   ///< the integer mean level of `even`
    std::shared_ptr<Signal> smoothed;        ///< `even`, smoothed
    ChromatogramPointer candidates;          ///< what the detector found
    std::vector<Peak> early;                 ///< candidates whose top lies less than a tenth above the start
    ChromatogramPointer late;                ///< the other candidates
    std::vector<Coeluted> coeluted;          ///< those of them that rise too little above their valleys
    ChromatogramPointer chromatogram;        ///< those that stand, each with its category
};

/// The number that stands for a grade: 0 no peak, 1 good, 2 double, 3 flat, 4 and above a number of
/// peaks. A lone peak gives its category, any other number of peaks itself; so three peaks share the
/// number of "flat", and readers of grades count on it.
template <class Scalar, class Values>
int qualityCode(const chromato::Chromatogram<Scalar, Values>& chromatogram) {
    const auto& peaks = chromatogram.peaks();
    return static_cast<int>(peaks.size() == 1 ? peaks.front().category : static_cast<Scalar>(peaks.size()));
}

/// The word for a code: "good", "double", "flat", or nothing where there is none.
inline const char* qualityText(int code) {
    switch (code) {
    case 1:
        return "good";
    case 2:
        return "double";
    case 3:
        return "flat";
    default:
        return "";
    }
}

namespace detail {

/// The first local minimum behind a tenth of the last abscissa; without one, a point of zeros.
template <class Scalar, class Values>
core::Point<Scalar, Values> usefulStart(const core::Signal1D<Scalar, Values>& signal) {
    const core::Point<Scalar, Values> first = signal.at(0);
    const Scalar threshold = 0.1 * signal.X(signal.size() - 1); // of the abscissa itself, not of the range
    for (std::int32_t i = first.index; static_cast<std::uint64_t>(i) < signal.size(); ++i) {
        if (signal.X(static_cast<std::uint64_t>(i)) > threshold && chromato::isLocalMinimum(signal, i)) {
            return signal.at(static_cast<std::uint64_t>(i));
        }
    }
    return {};
}

/// `double(sum) + y`, truncated toward zero; what does not fit gives the smallest value.
///
/// Where neither the sum nor the rounding of the addition can reach the next integer, the integer parts
/// just add up. That is nearly always so, and spares each step two conversions on the one before.
inline std::int32_t truncatedSum(std::int32_t sum, double y) {
    constexpr double nearlyOne = 0.999999; // a sum below 2^31 is rounded by less than what is missing here
    const std::int32_t whole = core::truncateToInt32(y);
    const bool simple =
        sum >= 0 && whole >= 0 && y >= 0.0 && y - whole < nearlyOne && whole < INT32_MAX - sum;
    return simple ? sum + whole : core::truncateToInt32(static_cast<double>(sum) + y);
}

/// The mean level in integers. The sum is truncated at every step, not once at the end, and divides as
/// an unsigned number; thresholds depend on both.
template <class Scalar, class Values>
std::int32_t integerMean(const core::Signal1D<Scalar, Values>& signal) {
    std::int32_t sum = 0;
    for (const Scalar y : signal.yValues()) {
        sum = truncatedSum(sum, y);
    }
    return core::lowInt32(static_cast<std::uint64_t>(std::int64_t{sum}) / signal.size());
}

} // namespace detail

/// The peaks of `late` that the coelution filter lets pass, each with its category: 3 for a top below the
/// mean level times the height factor, else 1.
template <class Scalar, class Values>
std::shared_ptr<chromato::Chromatogram<Scalar, Values>>
judge(const std::shared_ptr<const chromato::Chromatogram<Scalar, Values>>& late, std::int32_t mean,
      const SourceRockQAQCSettings<Scalar, Values>& settings) {
    const chromato::PeakFilterCoelution<Scalar, Values> coelution(settings.coelution, nullptr);
    auto judged = coelution.apply(late, nullptr);
    for (auto& peak : judged->peaks()) {
        peak.category = static_cast<double>(mean) * settings.heightCriteria > peak.top()->y ? 3 : 1;
    }
    return judged;
}

/// The first stages of the chain: cut, even grid, mean level. They alone can refuse a curve: one of finite
/// values that passes them is graded with any settings that the sliders of the quality check give. So this
/// is a grading on trial, at a third of its cost.
template <class Scalar, class Values>
Grading<Scalar, Values> usefulPart(const std::shared_ptr<const core::Signal1D<Scalar, Values>>& signal) {
    Grading<Scalar, Values> result;
    result.start = detail::usefulStart(*signal);
    result.extracted = signal->extract(result.start.x, 0.9 * signal->X(signal->size() - 1));
    result.even = std::make_shared<core::Signal1DIsoSampling<Scalar, Values>>(result.extracted);
    result.mean = detail::integerMean(*result.even);
    return result;
}

/// The stages behind `usefulPart`, as far as the sensitivity decides: detection, and the filter of early
/// tops. Fills in what they find; `judge` does the rest.
template <class Scalar, class Values>
void detectPeaks(Grading<Scalar, Values>& part, const Scalar& sensitivity) {
    using Noise = chromato::NoiseXNO<Scalar, Values>;
    using PeakPosition = typename chromato::PeakFilter<Scalar, Values>::PeakPosition;

    const std::uint64_t n = part.even->size();
    const Noise noiseless(1, 1, 1, 0, 0); // expects no noise anywhere, so it rejects no peak
    const chromato::Chromatograph<Scalar, Values, Noise> chromatograph(
        n, noiseless, 0.1 * static_cast<double>(n), part.even->X(0), part.even->X(n - 1));
    const chromato::PeaksDetectorXNO<Scalar, Values, Noise> detector(chromatograph, sensitivity);
    part.candidates = detector.detect(part.even, nullptr);
    part.smoothed = detector.smoothedSignal();

    // Drops, among others, the forced candidate at the very start.
    const Scalar earliest = part.start.x * 1.1;
    const auto isEarly = [earliest](PeakPosition peak) { return earliest > peak->top()->x; };
    const chromato::PeakFilterCustom<Scalar, Values, std::function<bool(PeakPosition)>> earlyFilter(isEarly);
    part.late = earlyFilter.apply(part.candidates, nullptr);
    part.early.clear();
    const auto& candidates = part.candidates->peaks();
    for (auto peak = candidates.begin(); peak != candidates.end(); ++peak) {
        if (earlyFilter.isFiltered(peak)) {
            part.early.push_back(*peak);
        }
    }
}

/// Runs the whole chain on `signal`: cut, even grid, mean level, detection, both filters, grading.
///
/// `signal` is held by a shared pointer and has ascending, finite abscissae. Raises what the stages
/// raise: a signal without points or without a useful range is a failure, not a grade.
template <class Scalar, class Values>
Grading<Scalar, Values> grade(const std::shared_ptr<const core::Signal1D<Scalar, Values>>& signal,
                              const SourceRockQAQCSettings<Scalar, Values>& settings) {
    auto result = usefulPart<Scalar, Values>(signal);
    detectPeaks<Scalar, Values>(result, settings.sensitivity);
    result.chromatogram = judge<Scalar, Values>(result.late, result.mean, settings);
    const chromato::PeakFilterCoelution<Scalar, Values> coelution(settings.coelution, nullptr);
    const auto& late = result.late->peaks();
    for (auto peak = late.begin(); peak != late.end(); ++peak) {
        if (coelution.isFiltered(peak)) {
            result.coeluted.push_back({*peak, coelution.ratio(*peak)});
        }
    }
    return result;
}

} // namespace algo::sr_qaqc

#pragma once

#include "chromato/peaksdetector.h"
#include "chromato/smoothedshape.h"
#include "core/parametrizer.h"
#include "filters/filtersmootherlinear.h"
#include "log/methodscope.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

namespace algo::chromato {

/// Finds peaks by the second derivative of the smoothed signal.
///
/// Smoothed and raw signal share their indices: the peaks' iterators walk the raw signal, every test of
/// shape reads the smoothed one at the same index. Serves one thread at a time, since `detect` keeps
/// the smoothed signal of its last run.
template <class Scalar, class Values, class Noise>
class PeaksDetectorXNO : public PeaksDetector<Scalar, Values, Noise> {
    using Base = PeaksDetector<Scalar, Values, Noise>;

public:
    using typename Base::ChromatogramPointer;
    using typename Base::SignalPointer;

    /// The tuning values by name.
    class Parameters : public core::ParametersBase<Scalar> {
    public:
        Parameters() {
            add("sensibility", 0.7, "The highest, the more sensitive",
                [](const Scalar& value) { return value > 0.0 && value < 1.0; });
            add("signalNoiseFactor", 3,
                "Peaks are considered if their heigth are > signalNoiseFactor * noise");
            // Can be set, and no stage reads it: a threshold here would change grades already given.
            add("top2ndDerivLimit", 0, "Peaks are considered if their second derivative is > to this number");
        }

    private:
        template <class... Validator>
        void add(const char* name, Scalar initial, const char* description, Validator... validator) {
            this->addParameter(std::make_shared<core::Parameter<Scalar>>(name, initial, validator...),
                               description);
        }
    };

    /// Raises `core::ErrorParameter` for a sensibility outside (0, 1); it is rounded to six digits.
    PeaksDetectorXNO(const Chromatograph<Scalar, Values, Noise>& chromatograph, const Scalar& sensibility)
        : Base(chromatograph) {
        parameters.setValue("sensibility", sensibility);
    }

    /// The peaks of `signal`. The first candidate always stands at index 1, whatever its shape; it is
    /// the caller's filters that remove it. Raises for a signal without samples.
    ChromatogramPointer detect(SignalPointer signal, log::Node* log) const override;

    /// The smoothed signal of the last run, null before the first.
    std::shared_ptr<core::Signal1D<Scalar, Values>> smoothedSignal() const { return m_smoothed; }

    Parameters parameters;

private:
    using PeakType = Peak<Scalar, Values>;
    using Peaks = std::vector<PeakType>;
    using Iterator = core::SignalIterator<Scalar, Values>;
    using Shape = std::shared_ptr<const SmoothedShape<Scalar, Values>>;
    using ShapeTest = bool (SmoothedShape<Scalar, Values>::*)(std::int32_t) const;

    template <ShapeTest test>
    static Iterator scanFor(const Shape& shape);
    static Peaks collectCandidates(const SignalPointer& signal, const Shape& shape);
    static void resolveOverlaps(Peaks& peaks, const Shape& shape);
    void removeNoise(Peaks& peaks) const;
    static void refineTop(PeakType& peak, const SmoothedShape<Scalar, Values>& shape);
    static Iterator highestBetween(const Iterator& left, const Iterator& right);

    mutable std::shared_ptr<core::Signal1D<Scalar, Values>> m_smoothed;
};

template <class Scalar, class Values, class Noise>
auto PeaksDetectorXNO<Scalar, Values, Noise>::detect(SignalPointer signal, log::Node* log) const
    -> ChromatogramPointer {
    const log::MethodScope scope(log, __PRETTY_FUNCTION__);
    const Scalar sensibility = parameters.template getValue<Scalar>("sensibility");
    const Scalar width = this->chromatograph().averagePeakWidth;
    scope.remark("average peak width: ", width);
    if (width == 0.0) {
        scope.template remark<log::NodeWarning>("void chromatogram created");
        return std::make_shared<Chromatogram<Scalar, Values>>(Peaks(), signal);
    }

    // The width counts samples, whatever their spacing, and so does the mask.
    const auto smoother =
        std::make_shared<filter::FilterSmootherLinear<Scalar, Values>>(signal, sensibility * width, log);
    m_smoothed = smoother;
    const Shape shape = std::make_shared<SmoothedShape<Scalar, Values>>(smoother);
    scope.keep("smoothed signal", std::shared_ptr<const core::Filter<Scalar, Values>>(smoother));

    Peaks peaks = collectCandidates(signal, shape);
    scope.remark("Valleys redefinition w/overlapping");
    resolveOverlaps(peaks, shape);
    scope.remark("Number of peaks before filtering w/noise : ", peaks.size());
    removeNoise(peaks);
    scope.remark("final number of peaks : ", peaks.size());
    for (PeakType& peak : peaks) {
        refineTop(peak, *shape);
    }
    return std::make_shared<Chromatogram<Scalar, Values>>(std::move(peaks), std::move(signal));
}

/// A walker that stops where `test` holds; it keeps the shape alive for as long as it is kept itself.
template <class Scalar, class Values, class Noise>
template <bool (SmoothedShape<Scalar, Values>::*test)(std::int32_t) const>
auto PeaksDetectorXNO<Scalar, Values, Noise>::scanFor(const Shape& shape) -> Iterator {
    return Iterator(
        [shape](const core::Point<Scalar, Values>& point) { return ((*shape).*test)(point.index); });
}

/// Every top with the valleys next to it. Tops before the last right valley have both valleys in common
/// with the candidate before them, so each stretch is searched once.
template <class Scalar, class Values, class Noise>
auto PeaksDetectorXNO<Scalar, Values, Noise>::collectCandidates(const SignalPointer& signal,
                                                                const Shape& shape) -> Peaks {
    Iterator leftScan = scanFor<&SmoothedShape<Scalar, Values>::isMinimum>(shape);
    Iterator rightScan = leftScan;
    const Iterator start = signal->begin() + 1;
    const Iterator stop = signal->end();
    Iterator walker = scanFor<&SmoothedShape<Scalar, Values>::isPeakTop>(shape).placedAt(start);
    Peaks candidates;
    for (; walker != stop; ++walker) {
        if (candidates.empty() || walker->index >= rightScan->index) {
            leftScan.search(walker, true);
            rightScan.search(walker, false);
        }
        candidates.emplace_back(leftScan, walker, rightScan);
    }
    return candidates;
}

/// Gives two neighbours whose valleys cross one valley in common: the first curvature maximum behind
/// the first top, wherever that lies. Where there is none, the last sample with the end flag set.
template <class Scalar, class Values, class Noise>
void PeaksDetectorXNO<Scalar, Values, Noise>::resolveOverlaps(Peaks& peaks, const Shape& shape) {
    Iterator valleyScan = scanFor<&SmoothedShape<Scalar, Values>::isCurvatureValley>(shape);
    for (std::size_t i = 0; i + 1 < peaks.size(); ++i) {
        PeakType& a = peaks[i];
        PeakType& b = peaks[i + 1];
        if (!a.overlaps(b)) {
            continue;
        }
        const Iterator valley = valleyScan.search(a.top(), false);
        a = PeakType(a.left(), a.top(), valley);
        b = PeakType(valley, b.top(), b.right());
    }
}

/// Removes the peaks that do not stand out from the noise expected at their amplitude.
template <class Scalar, class Values, class Noise>
void PeaksDetectorXNO<Scalar, Values, Noise>::removeNoise(Peaks& peaks) const {
    const Scalar factor = parameters.template getValue<Scalar>("signalNoiseFactor");
    const Noise noise = this->chromatograph().getNoise();
    const auto rejects = [&](const PeakType& peak) {
        const Scalar top = peak.top()->y;
        const Scalar heightLeft = std::max(top - peak.left()->y, Scalar(0));
        const Scalar heightRight = std::max(top - peak.right()->y, Scalar(0));
        return factor * noise(top) > std::abs((heightLeft + heightRight) * 0.5);
    };
    peaks.erase(std::remove_if(peaks.begin(), peaks.end(), rejects), peaks.end());
}

/// Moves the top onto the highest raw sample between the valleys, where they enclose a maximum of the
/// smoothed signal. The valleys are looked at first: behind one another, no walk would end.
template <class Scalar, class Values, class Noise>
void PeaksDetectorXNO<Scalar, Values, Noise>::refineTop(PeakType& peak,
                                                        const SmoothedShape<Scalar, Values>& shape) {
    const Iterator& left = peak.left();
    const Iterator& right = peak.right();
    if (left.atEnd() || right.atEnd() || right->index <= left->index) {
        return;
    }
    std::int32_t maximum = left->index;
    while (maximum < right->index && !shape.isMaximum(maximum)) {
        ++maximum;
    }
    if (maximum == right->index) {
        return;
    }
    peak = PeakType(left, highestBetween(left, right), right);
}

/// The first of the highest samples from `left` up to, and without, `right`.
template <class Scalar, class Values, class Noise>
auto PeaksDetectorXNO<Scalar, Values, Noise>::highestBetween(const Iterator& left, const Iterator& right)
    -> Iterator {
    const auto& signal = *left.signal();
    const auto sample = [&signal](std::int32_t i) { return signal.yValues()[static_cast<std::size_t>(i)]; };
    std::int32_t best = left->index;
    for (std::int32_t i = best + 1; i < right->index; ++i) {
        if (sample(i) > sample(best)) {
            best = i;
        }
    }
    return Iterator(Iterator::everyPoint, signal.at(static_cast<std::uint64_t>(best)), false, left.signal());
}

} // namespace algo::chromato

#pragma once

#include "core/signal1d.h"

#include <ostream>

namespace algo::sr_qaqc {

/// Writes curves and their grades as a matrix X and a vector y for machine learning.
///
/// Call `row` for each analysis, `beginLabels` once, `label` for each analysis in the same order, and
/// `finish`. Numbers have the stream's own format. A stream that fails is left alone.
template <class Scalar, class Values>
class MachineLearningWriter {
public:
    explicit MachineLearningWriter(std::ostream& stream) : m_stream(stream) { m_stream << "X=["; }

    /// The raw signal at 20 abscissae, or 21 by rounding; its first sixth is left out. Raises what the
    /// signal raises.
    void row(const core::Signal1D<Scalar, Values>& signal) {
        const Scalar first = signal.X(0);
        const Scalar last = signal.X(signal.size() - 1);
        const Scalar start = (last - first) / 6.0 + first;
        const Scalar step = (last - start) / 20.0;
        m_stream << "[";
        Scalar x = start;
        while (x < last) {
            m_stream << signal(x) << ",";
            const Scalar next = x + step;
            if (!(next > x)) {
                break; // a step below the resolution of the axis would never arrive
            }
            x = next;
        }
        m_stream << "]" << std::endl;
    }

    void beginLabels() { m_stream << "]" << std::endl << "y=["; }
    void label(int quality) { m_stream << quality << ";"; }
    void finish() { m_stream << "]" << std::endl; }

private:
    std::ostream& m_stream;
};

} // namespace algo::sr_qaqc

// Every member of the engine's class templates, whether a program calls it or not.
#include "every_header.h"

#include <functional>
#include <stdexcept>
#include <vector>

using Values = std::vector<double>;

namespace algo::core {
template class Exception<std::runtime_error>;
template class Line<double, Values>;
template class Math<Values>;
template class MemoryManager<Values>;
template class ModelErrorRandom<double, Values>;
template class NormalDistribution<double>;
template class Parameter<double>;
template class ParametersBase<double>;
template class Signal1DIsoSampling<double, Values>;
template class Signal1DRaw<double, Values>;
template class Signal1D<double, Values>;
template class SignalIterator<double, Values>;
template class Vector<Values>;
} // namespace algo::core

namespace algo::filter {
template class FilterConvolutor<double, Values>;
template class FilterSmootherLinear<double, Values>;
} // namespace algo::filter

namespace algo::chromato {
using Noise = NoiseXNO<double, Values>;
template class Chromatogram<double, Values>;
template class Chromatograph<double, Values, Noise>;
template class NoiseXNO<double, Values>;
template class Peak<double, Values>;
template class PeakFilterCoelution<double, Values>;
template class PeakFilterCustom<double, Values,
                                std::function<bool(PeakFilter<double, Values>::PeakPosition)>>;
template class PeaksDetectorXNO<double, Values, Noise>;
template class SmoothedShape<double, Values>;
} // namespace algo::chromato

namespace algo::sr_qaqc {
template class AnalysisData<double, Values>;
template class MachineLearningWriter<double, Values>;
template class SourceRockQAQCMgr<double, Values>;
} // namespace algo::sr_qaqc

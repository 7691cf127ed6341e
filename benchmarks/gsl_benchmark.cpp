#include "measuredcurve.h"

#include <benchmark/benchmark.h>
#include <gsl/gsl_filter.h>
#include <gsl/gsl_vector.h>

#include <algorithm>
#include <memory>

namespace {

constexpr std::size_t window = 477;
constexpr double sigma = 47.75; // samples

/// GSL's Gaussian filter with the engine's width, edges and number of weights.
void gslGaussian(benchmark::State& state) {
    const MeasuredCurve curve;
    const auto& samples = curve.even()->yValues();
    const auto owned = [](gsl_vector* vector) {
        return std::unique_ptr<gsl_vector, void (*)(gsl_vector*)>(vector, gsl_vector_free);
    };
    const auto in = owned(gsl_vector_alloc(samples.size()));
    const auto out = owned(gsl_vector_alloc(samples.size()));
    std::copy(samples.begin(), samples.end(), in->data);
    const std::unique_ptr<gsl_filter_gaussian_workspace, void (*)(gsl_filter_gaussian_workspace*)> workspace(
        gsl_filter_gaussian_alloc(window), gsl_filter_gaussian_free);
    const double alpha = (window - 1) / (2.0 * sigma);
    for (auto _ : state) {
        gsl_filter_gaussian(GSL_FILTER_END_PADVALUE, alpha, 0, in.get(), out.get(), workspace.get());
        benchmark::DoNotOptimize(out->data);
    }
}

BENCHMARK(gslGaussian)->Name("gsl_gaussian");

} // namespace

BENCHMARK_MAIN();

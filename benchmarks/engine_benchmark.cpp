#include "digest.h"
#include "filters/filtersmootherlinear.h"
#include "measuredcurve.h"
#include "rockeval/signalreader.h"
#include "sourcerockqaqc/srqaqcmngr.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <string_view>

namespace {

using Values = MeasuredCurve::Values;
using Settings = algo::sr_qaqc::SourceRockQAQCSettings<double, Values>;
using Manager = algo::sr_qaqc::SourceRockQAQCMgr<double, Values>;
using Smoother = algo::filter::FilterSmootherLinear<double, Values>;
using algo::filter::VectorForm;

const MeasuredCurve& curve() {
    static const MeasuredCurve measured;
    return measured;
}

/// The construction of the whole smoothing filter, as the detector makes it at the usual sensitivity.
void smooth(benchmark::State& state, VectorForm form) {
    const auto& even = curve().even();
    const double maskSize = 0.5 * 0.1 * static_cast<double>(even->size());
    for (auto _ : state) {
        const Smoother smoothed(even, maskSize, nullptr, form);
        benchmark::DoNotOptimize(smoothed.yValues().data());
    }
}

void analyse(benchmark::State& state) {
    Manager manager(std::make_shared<Settings>());
    manager.addAnalysis(curve().raw(), "measured");
    for (auto _ : state) {
        benchmark::DoNotOptimize(manager.analyse(curve().raw()));
    }
}

void parse(benchmark::State& state) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(rockeval::readSignal(curve().fileBytes(), "measured.S00"));
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(curve().fileBytes().size()));
}

void hash(benchmark::State& state) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(grade::sha256(curve().fileBytes()));
    }
}

/// A moved slider with a thousand analyses open.
void updateThousand(benchmark::State& state) {
    Manager manager(std::make_shared<Settings>());
    const auto& raw = *curve().raw();
    for (int i = 0; i < 1000; ++i) {
        const auto ordinate = [&raw, i](const std::size_t& k) { return raw.Y(k) + i % 10; };
        manager.addAnalysis(std::make_shared<algo::core::Signal1DIsoSampling<double, Values>>(
                                raw.X(0), raw.X(1) - raw.X(0), raw.size(), ordinate),
                            std::to_string(i));
    }
    for (auto _ : state) {
        manager.update();
    }
}

void registerForm(const char* name, VectorForm form) {
    if (algo::filter::supports(form)) {
        benchmark::RegisterBenchmark(name, smooth, form);
    }
}

/// Gives the measured curve to those who measure something else on it.
bool print(std::string_view wanted) {
    if (wanted == "--print-file") {
        std::fwrite(curve().fileBytes().data(), 1, curve().fileBytes().size(), stdout);
        return true;
    }
    if (wanted != "--print-curve") {
        return false;
    }
    for (const double y : curve().even()->yValues()) {
        std::printf("%.17g\n", y);
    }
    return true;
}

} // namespace

int main(int argc, char** argv) {
    benchmark::RegisterBenchmark("smooth/plain", smooth, VectorForm::plain);
    benchmark::RegisterBenchmark("smooth/engine", smooth, algo::filter::fastestVectorForm());
    registerForm("smooth/baseline", VectorForm::baseline);
    registerForm("smooth/avx2", VectorForm::avx2);
    registerForm("smooth/avx512", VectorForm::avx512);
    benchmark::RegisterBenchmark("analyse", analyse);
    benchmark::RegisterBenchmark("parse_s00", parse);
    benchmark::RegisterBenchmark("hash", hash);
    benchmark::RegisterBenchmark("update_1000", updateThousand)->Unit(benchmark::kMillisecond);
    if (argc == 2 && print(argv[1])) {
        return 0;
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

#include "enginetest.h"

#include <random>

using namespace enginetest;
using algo::filter::VectorForm;
using Convolutor = algo::filter::FilterConvolutor<double, Values>;
using Coelution = algo::chromato::PeakFilterCoelution<double, Values>;
using Position = algo::chromato::PeakFilter<double, Values>::PeakPosition;
using Custom = algo::chromato::PeakFilterCustom<double, Values, std::function<bool(Position)>>;

namespace {

Line identity(double xmin, double xmax) {
    Line line(0, 0, 1, 1);
    line.setDomain(xmin, xmax);
    return line;
}

/// A peak whose left valley, top and right valley have these ordinates, at the abscissae 0, 1 and 2.
Peak peakOf(double left, double top, double right) {
    const Iterator begin = counted({left, top, right})->begin();
    return {begin, begin + 1, begin + 2};
}

} // namespace

TEST(Convolution, takes_weights_at_the_fractional_start_and_applies_them_at_the_truncated_one) {
    // A single 1 in the middle: the output is the mask, mirrored, and tells where each weight is applied.
    const Convolutor ahead(counted({0, 0, 1, 0, 0}), identity(0.5, 3.4)); // 2.9 wide, so two: 0.5 and 1.5
    EXPECT_EQ(ahead.yValues(), Values({0, 1.5, 0.5, 0, 0}));
    EXPECT_EQ(algo::core::MemoryManager<Values>::getVector(2).data()[1], 1.5); // the mask went back
    const auto input = signalOf({0, 1, 5}, {1, 10, 100});
    const Convolutor wide(input, identity(-2, 2)); // the end samples stand in past either end
    EXPECT_EQ(wide.yValues(), Values({-2 - 1 + 10, -2 - 1 + 100, -2 - 10 + 100}));
    EXPECT_EQ(wide.xValues(), input->xValues());
    EXPECT_EQ(wide.xmax(), 5);
}

TEST(Convolution, kernels_without_a_usable_domain_are_refused) {
    const auto input = counted(Values(5, 1.0));
    EXPECT_RAISES(Convolutor(input, Line(0, 0, 1, 1)), "FilterConvolutor::FilterConvolutor",
                  "filters/filterconvolutor.h",
                  "Convolution can only be achieved with a scalar function that is restricted in X domain "
                  "(this can be fixed easily)");
    for (const Line& kernel : {identity(0, 10000001), identity(5, -5)}) {
        EXPECT_RAISES(Convolutor(input, kernel), "MemoryManager::getVector", "core/memorymanager.h",
                      "request over-sized vector");
    }
    EXPECT_EQ(Convolutor(input, identity(2, 2)).yValues(), Values(5, 0.0)); // no width, no weights
    EXPECT_FALSE(Convolutor(std::make_shared<Signal>(0), identity(-2, 2)).restricted());
    EXPECT_EQ(Smoother(std::make_shared<Signal>(0), 2, nullptr).size(), 0U);
}

TEST(Correlation, every_vector_form_gives_the_bits_of_the_plain_one) {
    std::mt19937 generator(7);
    const auto numbers = [&](int count) {
        Values values(static_cast<std::size_t>(count));
        for (double& value : values) {
            value = (static_cast<double>(generator()) - 2e9) * (generator() % 8 == 0 ? 1e-14 : 1e-3);
        }
        return values;
    };
    const auto compare = [&](const Values& in, const Values& mask, int start) {
        Values plain(in.size());
        algo::filter::correlate(VectorForm::plain, mask, start, in, plain);
        for (const auto form : {VectorForm::baseline, VectorForm::avx2, VectorForm::avx512}) {
            Values wide(in.size(), 99.0);
            if (algo::filter::supports(form)) {
                algo::filter::correlate(form, mask, start, in, wide);
                ASSERT_TRUE(sameBits(wide, plain))
                    << "form " << int(form) << ", " << in.size() << " samples, " << mask.size()
                    << " weights from " << start;
            }
        }
    };
    for (int i = 1; i <= 71; ++i) {
        const int n = i == 71 ? 955 : i;
        for (int width = 0; width < 24; ++width) {
            const int weights = width < 21 ? width : (width == 21 ? 477 : (width == 22 ? 513 : 1100));
            for (const int start : {-n - 1200, -n, -weights / 2, -1, 0, 3, n - 1, n + 5}) {
                ASSERT_NO_FATAL_FAILURE(compare(numbers(n), numbers(weights), start));
            }
        }
    }
}

TEST(Detector, a_noise_law_of_amplitudes_rejects_what_does_not_stand_out) {
    // A bell of 900 and one of 30, both on a level of about 110.
    Values y = curve({{60, 900, 8}, {140, 30, 8}})->yValues();
    for (double& value : y) {
        value += 100;
    }
    const auto signal = counted(y);
    const auto tops = [&](double scale, double factor) {
        Detector detector = detectorOf(signal, 10, Noise(0, 1e9, 1, 0, scale));
        detector.parameters.setValue("signalNoiseFactor", factor);
        const auto chromatogram = detector.detect(signal, nullptr);
        std::string found;
        for (const Peak& peak : chromatogram->peaks()) {
            found += peak.top()->index == 60 ? "big " : (peak.top()->index == 140 ? "small" : "");
        }
        return found;
    };
    EXPECT_EQ(tops(0, 3), "big small");
    EXPECT_EQ(tops(0.2, 3), "big "); // 0.6 of 140 is more than 30
    EXPECT_EQ(tops(0.4, 3), "");
    EXPECT_EQ(tops(0.4, 0), "big small");
}

TEST(Detector, ignores_its_limit_of_second_derivatives_and_raises_without_samples) {
    const auto signal = curve({{80, 900, 12}, {120, 300, 10}});
    Detector detector = detectorOf(signal, 20.1);
    const std::size_t before = detector.detect(signal, nullptr)->peaks().size();
    detector.parameters.setValue("top2ndDerivLimit", 1e30);
    EXPECT_EQ(detector.detect(signal, nullptr)->peaks().size(), before);
    const auto none = std::make_shared<Signal>(0);
    EXPECT_RAISES(detectorOf(none, 1).detect(none, nullptr), "Signal1D::X", "core/signal1d.h", noLastX);
}

TEST(Chromatograph, replaces_a_width_of_zero) {
    EXPECT_EQ(Chromatograph(199, Noise(1, 1, 1, 0, 0), 0, 0, 1).averagePeakWidth, 1);
    EXPECT_EQ(Chromatograph(299, Noise(1, 1, 1, 0, 0), 0, 0, 1).averagePeakWidth, 2);
}

TEST(Coelution, measures_from_the_baseline_where_there_is_one) {
    const auto baseline = std::make_shared<Line>(0, 0, 2, 4); // 2 at the top
    EXPECT_EQ(Coelution(1, baseline).ratio(peakOf(3, 10, 4)), 4);
    baseline->setDomain(1.5, 2);
    EXPECT_EQ(Coelution(1, baseline).ratio(peakOf(3, 10, 4)), 7);
}

TEST(PeakFilter, keeps_the_source_and_needs_a_chromatogram_and_a_predicate) {
    const auto source = std::make_shared<Chromatogram>(std::vector<Peak>(2, peakOf(0, 1, 0)), counted({7}));
    EXPECT_EQ(Custom([](Position) { return true; }).apply(source, nullptr)->signal(), source->signal());
    EXPECT_EQ(source->peaks().size(), 2U);
    EXPECT_THROW(Custom(nullptr).apply(source, nullptr), std::bad_function_call);
    EXPECT_RAISES(Custom(nullptr).apply(nullptr, nullptr), "PeakFilter::apply", "chromato/peakfilter.h",
                  "The chromatogram is not defined");
}

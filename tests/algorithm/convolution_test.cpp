#include "enginetest.h"

#include <random>

using namespace enginetest;
using algo::filter::VectorForm;
using Convolutor = algo::filter::FilterConvolutor<double, Values>;

namespace {

Line identity(double xmin, double xmax) {
    Line line(0, 0, 1, 1);
    line.setDomain(xmin, xmax);
    return line;
}

/// A single 1 in the middle: the output is the mask, mirrored, and tells where each weight is applied.
std::shared_ptr<Signal> impulse(std::size_t middle) {
    Values y(2 * middle + 1, 0.0);
    y[middle] = 1;
    return counted(y);
}

} // namespace

TEST(Convolution, takes_weights_at_the_fractional_start_and_applies_them_at_the_truncated_one) {
    const Convolutor result(impulse(5), identity(-2.5, 2.5));
    EXPECT_EQ(result.yValues(), Values({0, 0, 0, 1.5, 0.5, -0.5, -1.5, -2.5, 0, 0, 0}));
    const Convolutor ahead(impulse(2), identity(0.5, 3.4)); // 2.9 wide, so two weights: 0.5 and 1.5
    EXPECT_EQ(ahead.yValues(), Values({0, 1.5, 0.5, 0, 0}));
    EXPECT_EQ(algo::core::MemoryManager<Values>::getVector(2).data()[1], 1.5); // the mask went back
}

TEST(Convolution, end_samples_stand_in_past_either_end) {
    const auto input = signalOf({0, 1, 5}, {1, 10, 100});
    const Convolutor wide(input, identity(-2, 2)); // the weights -2, -1, 0, 1 at the offsets of their values
    EXPECT_EQ(wide.yValues(), Values({-2 - 1 + 10, -2 - 1 + 100, -2 - 10 + 100}));
    EXPECT_EQ(wide.xValues(), input->xValues());
    EXPECT_EQ(wide.xmax(), 5);
    EXPECT_EQ(Convolutor(input, identity(1, 2)).yValues(), Values({10, 100, 100}));
}

TEST(Convolution, kernels_without_a_usable_domain_are_refused) {
    const auto input = impulse(2);
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
}

TEST(Smoother, has_ten_times_the_mask_size_of_weights_one_short_on_the_right) {
    struct Case {
        double maskSize;
        int weights, start;
    };
    // Up to a mask size of 1 the samples are copied first, and overwritten all the same.
    for (const Case& c : {Case{1.0, 10, -5}, Case{1.5, 15, -7}, Case{2.0, 20, -10}, Case{0.05, 0, 0}}) {
        const algo::core::NormalDistribution<double> bell(c.maskSize, 0, 1);
        Values expected(61, 0.0);
        for (int j = 0; j < c.weights; ++j) {
            expected[static_cast<std::size_t>(30 - c.start - j)] = bell.evaluate(c.maskSize * -5 + j);
        }
        const Smoother smoothed(impulse(30), c.maskSize, nullptr);
        EXPECT_TRUE(sameBits(smoothed.yValues(), expected)) << c.maskSize;
        EXPECT_TRUE(sameBits(smoothed.xValues(), impulse(30)->xValues()));
    }
    EXPECT_NEAR(Smoother(counted(Values(30, 1e3)), 1, nullptr).Y(15), 999.9985064610161, 1e-9);
    EXPECT_EQ(Smoother(std::make_shared<Signal>(0), 2, nullptr).size(), 0U);
    EXPECT_RAISES(Smoother(impulse(2), 0, nullptr), "NormalDistribution::NormalDistribution",
                  "core/simplescalfunctions.h", "sigma has to be positive for a normal distribution");
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
    std::vector<int> sizes{955};
    for (int n = 1; n <= 70; ++n) {
        sizes.push_back(n);
    }
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
    for (const int n : sizes) {
        for (int width = 0; width < 24; ++width) {
            const int weights = width < 21 ? width : (width == 21 ? 477 : (width == 22 ? 513 : 1100));
            for (const int start : {-n - 1200, -n, -weights / 2, -1, 0, 3, n - 1, n + 5}) {
                ASSERT_NO_FATAL_FAILURE(compare(numbers(n), numbers(weights), start));
            }
        }
    }
}

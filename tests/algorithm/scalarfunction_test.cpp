#include "enginetest.h"

#include <cmath>

using namespace enginetest;
using algo::core::NormalDistribution;

TEST(ScalarFunction, clamps_to_the_nearest_bound_or_fails_by_policy) {
    Line line(0, 1, 2, 5);
    EXPECT_EQ(line(-100), -199); // no domain, no test
    line.setDomain(-1, 1);
    EXPECT_EQ(line(2), 3);
    EXPECT_EQ(line(-2), -1);
    EXPECT_EQ(line(-1), -1);
    EXPECT_EQ(line.evaluate(2), 5);
    EXPECT_EQ(line.outOfDefinedDomain(-1), 3); // inside counts as above
    line.setOutOfDomainPolicy(0);
    EXPECT_EQ(line(1), 3);
    EXPECT_RAISES(line(2.5), "ScalarFunction1D::outOfDefinedDomain", "core/scalarfunction1d.h",
                  "try to evaluate a function out of its domain definition. x = 2.5, xmin=-1, xmax=1");
    line.setDomain(3, 3);
    EXPECT_EQ(line(2), 5); // equal bounds are no domain
}

TEST(NormalDistribution, gives_the_density_scaled_to_its_area) {
    EXPECT_EQ(NormalDistribution<double>(1, 0, 1).evaluate(0), 0.3989422804014327);
    NormalDistribution<double> law(2, 5, 10);
    law.setDomain(4, 6);
    EXPECT_DOUBLE_EQ(law.evaluate(8), 0.6475879783294587); // the domain binds the guarded call alone
    EXPECT_EQ(law(8), law.evaluate(6));
    for (const double sigma : {0.0, -1.0}) {
        EXPECT_RAISES(NormalDistribution<double>(sigma, 0, 1), "NormalDistribution::NormalDistribution",
                      "core/simplescalfunctions.h", "sigma has to be positive for a normal distribution");
    }
}

TEST(NoiseLaw, clamps_its_argument_with_the_upper_bound_last) {
    const double nan = std::nan("");
    EXPECT_EQ(Noise(0, 1e9, 0.5, 0, 1)(49), 7);
    EXPECT_EQ(Noise(0, 1e9, 0.5, 0, 1)(-49), 0);
    EXPECT_EQ(Noise(5, 2, 1, 0, 1)(1), 2);
    EXPECT_EQ(Noise(3, 9, 2, 1, 10)(nan), 40);
    EXPECT_TRUE(std::isnan(Noise(-4, 9, 0.5, 0, 1)(-4)));
    EXPECT_EQ(Noise(1, 1, 1, 0, 0)(nan), 0);
    EXPECT_EQ(Noise(1, 2, 3, 4, 5).parameters(), Values({5, 3, 4, 1, 2}));
}

TEST(NoiseLaw, copies_draw_the_same_deviates_and_no_noise_draws_zero) {
    Noise law(0, 1e9, 1, 0, 1);
    Noise copy = law;
    const double deviate = law.draw(3);
    EXPECT_NE(deviate, law.draw(3));
    EXPECT_EQ(deviate, copy.draw(3));
    EXPECT_EQ(Noise(1, 1, 1, 0, 0).draw(3), 0);
}

TEST(Chromatograph, replaces_a_width_of_zero_and_divides_by_the_number_of_samples) {
    const auto width = [](std::size_t n, double given) {
        return Chromatograph(n, Noise(1, 1, 1, 0, 0), given, 0, 1).averagePeakWidth;
    };
    EXPECT_EQ(width(199, 0), 1);
    EXPECT_EQ(width(299, 0), 2);
    EXPECT_EQ(width(1000, 0.25), 0.25);
    EXPECT_EQ(Chromatograph(5, Noise(1, 1, 1, 0, 0), 1, 10, 14).samplingStep(), 0.8);
}

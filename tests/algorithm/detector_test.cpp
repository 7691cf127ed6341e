#include "enginetest.h"

#include <sstream>

using namespace enginetest;
using Shape = algo::chromato::SmoothedShape<double, Values>;

namespace {

Detector detectorOf(const SignalPointer& signal, double width, double sensibility,
                    const Noise& noise = Noise(1, 1, 1, 0, 0)) {
    return Detector(Chromatograph(signal->size(), noise, width, 0, 1), sensibility);
}

/// Peaks as "left top right"; a bar marks a valley that no scan found.
std::string placed(const Chromatogram& chromatogram) {
    std::ostringstream text;
    for (const Peak& peak : chromatogram.peaks()) {
        text << (peak.left().atEnd() ? "|" : "") << peak.left()->index << " " << peak.top()->index << " "
             << peak.right()->index << (peak.right().atEnd() ? "|; " : "; ");
    }
    return text.str();
}

/// With a mask size of 0.1 the mask is one weight on the sample itself: the shape under test is that of `y`.
std::string detectUnsmoothed(const Values& y) {
    const auto signal = counted(y);
    return placed(*detectorOf(signal, 0.2, 0.5).detect(signal, nullptr));
}

} // namespace

TEST(SmoothedShape, derivatives_divide_by_the_number_of_samples_in_the_stencils_order) {
    const Shape shape(signalOf({0, 0.1, 0.2, 3 * 0.1, 0.4}, {3.1, 7.6, 7.0, 1.7, 4.8}));
    EXPECT_EQ(shape.dx(), 0.08);
    // ((4.8 - 1.7) / 0.16 - (7.6 - 3.1) / 0.16) / 0.16; taking the differences together ends in other digits.
    EXPECT_EQ(shape.secondDerivative(2), -0x1.b580000000003p+5);
    EXPECT_TRUE(Shape(counted({0, 1, 1, 2})).isMinimum(2)); // a shelf on a rising flank
}

TEST(Detector, the_first_candidate_stands_at_index_1_whatever_its_shape) {
    EXPECT_EQ(detectUnsmoothed({1, 2, 3, 4, 5, 6, 7}), "|0 1 6|; ");
    EXPECT_EQ(detectUnsmoothed({-1, -9, -2, -9, -1, -9, -4, -9}), "1 1 1; "); // no other below zero
    EXPECT_EQ(detectUnsmoothed({1, 2}) + detectUnsmoothed({1}), "|0 1 1|; ");
    const auto none = std::make_shared<Signal>(0);
    EXPECT_RAISES(detectorOf(none, 1, 0.5).detect(none, nullptr), "Signal1D::X", "core/signal1d.h", noLastX);
}

TEST(Detector, neighbours_that_overlap_share_the_curvature_maximum_behind_the_first_top) {
    // Tops 3 and 5 between the minima 2 and 6 share 4, and the last top moves onto it.
    EXPECT_EQ(detectUnsmoothed({1, 2, 2, 3, 8, 4, 4, 5, 2}), "|0 1 2; 2 3 4; 4 4 6; ");
    // It lies behind the second top; there is none; it lies behind the right valley, where a walk never ends.
    EXPECT_EQ(detectUnsmoothed({4, 5, 9, 9, 8, 6, 9, 6, 1}), "|0 1 4; 4 3 5; ");
    EXPECT_EQ(detectUnsmoothed({3, 6, 7, 8, 9, 1, 2, 4, 4}), "|0 1 8|; |8 3 5; ");
    EXPECT_EQ(detectUnsmoothed({1, 3, 9, 6, 5, 7, 3, 2, 1}), "|0 1 5; 5 3 4; ");
}

TEST(Detector, tops_move_onto_the_first_of_the_highest_samples_around_a_maximum) {
    EXPECT_EQ(detectUnsmoothed({6, 5, 8, 8, 8, 2, 8, 9, 2}), "1 1 1; 1 2 5; ");
    EXPECT_EQ(detectUnsmoothed({8, 4, 3, 1, 3, 2, 6, 3, 8}), "|0 1 3; 3 3 3; 5 5 5; "); // all three in one
    EXPECT_EQ(detectUnsmoothed({8, 9, 1, 3, 5, 8, 8, 9, 8}), "|0 1 2; 2 4 6; ");        // no maximum enclosed
}

TEST(Detector, a_noise_law_of_amplitudes_rejects_what_does_not_stand_out) {
    // A bell of 900 and one of 30, both on a level of about 110.
    Values y = curve({{60, 900, 8}, {140, 30, 8}})->yValues();
    for (double& value : y) {
        value += 100;
    }
    const auto signal = counted(y);
    const auto tops = [&](double scale, double factor) {
        Detector detector = detectorOf(signal, 10, 0.5, Noise(0, 1e9, 1, 0, scale));
        detector.parameters.setValue("signalNoiseFactor", factor);
        const std::string all = placed(*detector.detect(signal, nullptr));
        return std::string(all.find(" 60 ") != std::string::npos ? "big " : "") +
               (all.find(" 140 ") != std::string::npos ? "small" : "");
    };
    EXPECT_EQ(tops(0, 3), "big small");
    EXPECT_EQ(tops(0.2, 3), "big "); // 0.6 of 140 is more than 30
    EXPECT_EQ(tops(0.4, 3), "");
    EXPECT_EQ(tops(0.4, 0), "big small");
}

TEST(Detector, rounds_its_sensibility_and_ignores_the_limit_of_second_derivatives) {
    const auto signal = curve({{80, 900, 12}, {120, 300, 10}});
    Detector detector = detectorOf(signal, 20.1, 0.1234567);
    const std::string before = placed(*detector.detect(signal, nullptr));
    const Smoother expected(signal, 0.123457 * 20.1, nullptr);
    EXPECT_TRUE(sameBits(detector.smoothedSignal()->yValues(), expected.yValues()));
    detector.parameters.setValue("top2ndDerivLimit", 1e30);
    EXPECT_EQ(placed(*detector.detect(signal, nullptr)), before);
    EXPECT_NE(before.find(" 80 "), std::string::npos);
}

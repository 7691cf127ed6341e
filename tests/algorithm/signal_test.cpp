#include "enginetest.h"

#include <sstream>

using namespace enginetest;

namespace {

constexpr const char* plain = "core/signal1d.h";
constexpr const char* iso = "core/signal1disosampling.h";
const Values cubes{0, 1, 8, 27, 64}; // no parabola fits them, so a value tells which three points it is from

} // namespace

TEST(Signal, an_index_out_of_range_is_told_as_an_unsigned_number) {
    const auto signal = counted({5, 6});
    EXPECT_RAISES(
        signal->X(static_cast<std::uint64_t>(-1)), "Signal1D::X", plain,
        "try to get X with an index out of signal's data range (size=2, index=18446744073709551615)");
    EXPECT_RAISES(signal->Y(2), "Signal1D::Y", plain,
                  "try to get Y with an index out of signal's data range (size=2, index=2)");
    EXPECT_RAISES(signal->at(7), "Signal1D::at", plain,
                  "try to get an index out of signal's data range; i=7; size=2");
}

TEST(SignalEvaluate, walks_up_and_down_to_the_interval_that_holds_x) {
    const auto signal = counted(cubes);
    // From points 1, 2, 3: 1 + 7u + 6u(u - 1) with u = 0.5; from 0, 1, 2 and from 2, 3, 4 in the same way.
    const Values asked{1.5, 3.5, 1.5, 0.5, 2, 2, 3.5, 2, 0, 4, -1, 4.1};
    const Values expected{3, 43.25, 3, -0.25, 8, 8, 43.25, 8, 0, 64, 0, 64};
    for (std::size_t i = 0; i < asked.size(); ++i) {
        EXPECT_EQ(signal->evaluate(asked[i]), expected[i]) << "call " << i;
    }
    EXPECT_EQ(counted({0, 1, 8})->evaluate(1.5), 3.75);          // 1.5 + 3 * 1.5 * 0.5
    const auto marked = signalOf({1.23456789, 2, 3}, {1, 2, 3}); // starts where a fresh signal says it stands
    EXPECT_EQ(marked->evaluate(1.23456789) + marked->evaluate(2) + marked->evaluate(1.23456789), 4);
}

TEST(SignalEvaluate, a_step_below_the_first_point_wraps) {
    // Other samples under an old search state: the walk starts on the first one, already at x.
    for (const int order : {1, 2}) {
        const auto signal = signalOf({0, 1, 2}, {0, 1, 4}, order);
        signal->evaluate(0.5);
        std::istringstream text("a.b\n3\n10 5\n11 6\n12 9\n");
        signal->read(text);
        EXPECT_EQ(signal->evaluate(10), order == 1 ? 9 : 5);
    }
}

TEST(SignalEvaluate, policy_0_prints_the_last_abscissa_twice) {
    const auto signal = counted(cubes);
    signal->setOutOfDomainPolicy(0);
    for (const double outside : {-1.0, 9.0}) {
        EXPECT_RAISES(signal->evaluate(outside), "Signal1D::evaluate", plain,
                      "x value out of bounds. Signal's range = [0:4]; x=4");
    }
    EXPECT_EQ(signal->evaluate(4), 64);
    EXPECT_RAISES(signalOf({0, 1}, {0, 1}, 3)->evaluate(0.5), "Signal1D::evaluate", plain,
                  "interpolation order can only be 1 or 2 (actual=3)");
}

TEST(SignalEvaluate, interpolators_keep_their_order_of_operations_and_refuse_equal_abscissae) {
    // A weighted mean of the two ordinates, and any other grouping, ends in another last digit.
    EXPECT_EQ(signalOf({7.8, 8.1}, {6.1, 7.5}, 1)->evaluate(8.049999999999999), 7.266666666666659);
    EXPECT_EQ(signalOf({0.3, 6.3, 9.5}, {7.6, 0.8, 8.7})->evaluate(3.313), 0.6615556614583333);
    const auto signal = signalOf({0, 1, 1, 3}, {2, 0.1, 7, 9}, 1);
    EXPECT_EQ(signal->evaluate(1), 0.1);
    EXPECT_EQ(signal->evaluate(2), 8);
    EXPECT_RAISES(signal->interpolateLinear(2.5, 1), "Signal1D::interpolateLinear", plain,
                  "problem in interpolateLinear: index = 1; size = 4; x = 2.5");
    for (const Values& x : {Values{0, 0, 1}, Values{0, 1, 0}, Values{1, 0, 0}}) {
        EXPECT_RAISES(signalOf(x, {5, 5, 5})->interpolateQuadratic(0.5, 0), "Math::interpolateQuadratic",
                      "core/algomath.h", "interpolateQuadratic needs 3 distinct points");
    }
}

TEST(SignalEvaluate, short_signals_have_a_line_or_a_level) {
    for (const int order : {1, 2}) {
        const auto two = signalOf({0, 2}, {1, 5}, order);
        EXPECT_EQ(two->evaluate(1), 3);
        EXPECT_EQ(order == 1 ? two->interpolateLinear(4, 0) : two->interpolateQuadratic(4, 0), 9);
        EXPECT_EQ(signalOf({3}, {8}, order)->evaluate(3), 8);
    }
    const auto one = counted({8});
    one->setOutOfDomainPolicy(0);
    EXPECT_RAISES(one->interpolateQuadratic(5, 0), "Signal1D::interpolateQuadratic", plain,
                  "Can not extrapolate (index = 1; size = 1)");
    one->setOutOfDomainPolicy(2);
    EXPECT_RAISES(one->interpolateQuadratic(5, 0), "Signal1D::interpolateQuadratic", plain,
                  "problem in interpolateQuadratic: index = 1; size = 1; x = 5");
}

TEST(SignalExtract, drops_the_point_at_the_upper_bound) {
    const auto signal = counted({0, 1, 2, 3, 4, 5, 6, 7, 8, 9});
    EXPECT_EQ(signal->extract(2, 5)->xValues(), Values({2, 3, 4}));
    EXPECT_EQ(signal->extract(0, 9)->xValues(), Values({0, 1, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_EQ(signal->extract(-3, 2)->xValues(), Values({0, 1}));
    EXPECT_EQ(signal->extract(2.5, 4.5)->xValues(), Values({2, 3, 4}));
    EXPECT_EQ(signal->extract(0, -5)->size(), 9U); // below zero, the estimate wraps to the end
    EXPECT_THROW(signal->extract(7, 5), std::length_error);
    EXPECT_RAISES(signal->extract(5, 5), "Signal1D::X", plain, noLastX);
    EXPECT_RAISES(Signal(0).extract(0, 1), "Signal1D::extract", plain,
                  "Try to extract a signal from a 0 point signal");
}

TEST(SignalExtract, an_upper_estimate_above_the_bound_stays) {
    // The mean step is 23 / 6: 10 lies 2.6 of those from the start, so the estimate is point 2, though point
    // 1 already reaches 10. And 20 lies 5.2 steps from the start; with 23 / 5 it would be 4.3.
    const auto signal = signalOf({0, 10, 20, 21, 22, 23}, {0, 1, 2, 3, 4, 5});
    EXPECT_EQ(signal->extract(0, 10)->xValues(), Values({0, 10}));
    EXPECT_EQ(signal->extract(10, 20)->xValues(), Values({10, 20, 21, 22}));
    EXPECT_EQ(signalOf({0, 1, 2, 3, 100}, cubes)->extract(0, 2.5)->xValues(), Values({0, 1, 2}));
}

TEST(SignalExtract, gives_a_plain_clamping_signal_of_second_order_with_a_longer_name) {
    const auto source = std::make_shared<IsoSignal>(0, 1, 5, [](std::size_t i) { return cubes[i]; });
    source->setNames("well", "curve");
    source->setOutOfDomainPolicy(0);
    const auto part = source->extract(1, 4);
    EXPECT_EQ(part->extract(1, 3)->fullName(), "well.curve_extracted_extracted");
    EXPECT_EQ(part->evaluate(99), 27);
    EXPECT_EQ(signalOf({0, 1, 2, 3, 4}, cubes, 1)->extract(0, 4)->evaluate(0.5), -0.25);
}

TEST(IsoSignal, a_copy_on_an_even_grid_divides_by_the_number_of_points) {
    const auto source = counted({5, 6, 7, 8, 10});
    const IsoSignal even(source);
    EXPECT_EQ(even.xValues(), Values({0, 0.8, 1.6, 3 * 0.8, 3.2}));
    EXPECT_EQ(even.yValues(), source->yValues());
    EXPECT_EQ(IsoSignal(source, 5).xmax(), 3.2);
    EXPECT_RAISES(IsoSignal(source, 4), "Signal1DIsoSampling::Signal1DIsoSampling", iso,
                  " n should be the same");
}

TEST(IsoSignal, evaluate_raises_where_a_plain_signal_clamps) {
    const IsoSignal even(0, 1, 4, [](std::size_t i) { return cubes[i]; });
    EXPECT_EQ(even.evaluate(1.5), 3);
    EXPECT_EQ(even.evaluate(3.5), 41);    // from the last three points: 1 + 7u + 6u(u - 1), u = 2.5
    EXPECT_EQ(even.evaluate(-0.5), 1.75); // cut to index 0 and extrapolated: u + 3u(u - 1), u = -0.5
    EXPECT_RAISES(even.evaluate(4), "Signal1DIsoSampling::evaluate", iso,
                  "can not extrapolate at X=4: index=4, size=4");
    EXPECT_RAISES(even.evaluate(-1), "Signal1DIsoSampling::evaluate", iso,
                  "can not extrapolate at X=-1: index=18446744073709551615, size=4");
    EXPECT_EQ(even(-1) + even(9), 27); // the guarded call never gets there
}

TEST(Signal, swap_leaves_names_and_domains) {
    const auto a = counted(cubes);
    const auto b = signalOf({10, 20}, {3, 4}, 1);
    a->setNames("a", "1");
    a->swap(*b);
    EXPECT_EQ(a->evaluate(15), 3.5);
    EXPECT_EQ(a->fullName() + b->fullName(), "a.1.");
    EXPECT_EQ(a->xmax() + b->xmax(), 24);
}

#include "enginetest.h"

#include <sstream>

using namespace enginetest;

namespace {

constexpr const char* header = "core/signal1d.h";
constexpr const char* isoHeader = "core/signal1disosampling.h";
const Values cubes{0, 1, 8, 27, 64}; // no parabola fits them, so a value tells which three points it is from

std::string written(const Signal& signal) {
    std::ostringstream stream;
    signal.write(stream);
    return stream.str();
}

} // namespace

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

TEST(Signal, what_has_no_answer_is_told_with_its_numbers) {
    const auto two = counted({5, 6});
    EXPECT_RAISES(
        two->X(static_cast<std::uint64_t>(-1)), "Signal1D::X", header,
        "try to get X with an index out of signal's data range (size=2, index=18446744073709551615)");
    EXPECT_RAISES(two->Y(2), "Signal1D::Y", header,
                  "try to get Y with an index out of signal's data range (size=2, index=2)");
    EXPECT_RAISES(two->at(7), "Signal1D::at", header,
                  "try to get an index out of signal's data range; i=7; size=2");
    EXPECT_RAISES(two->extract(5, 5), "Signal1D::X", header, noLastX);
    EXPECT_RAISES(Signal(0).extract(0, 1), "Signal1D::extract", header,
                  "Try to extract a signal from a 0 point signal");
    const auto signal = counted(cubes);
    signal->setOutOfDomainPolicy(0);
    for (const double outside : {-1.0, 9.0}) { // the last abscissa stands twice
        EXPECT_RAISES(signal->evaluate(outside), "Signal1D::evaluate", header,
                      "x value out of bounds. Signal's range = [0:4]; x=4");
    }
    EXPECT_EQ(signal->evaluate(4), 64);
    EXPECT_RAISES(signalOf({0, 1}, {0, 1}, 3)->evaluate(0.5), "Signal1D::evaluate", header,
                  "interpolation order can only be 1 or 2 (actual=3)");
    EXPECT_RAISES(signalOf({0, 1, 1, 3}, cubes, 1)->interpolateLinear(2.5, 1), "Signal1D::interpolateLinear",
                  header, "problem in interpolateLinear: index = 1; size = 4; x = 2.5");
    for (const Values& x : {Values{0, 0, 1}, Values{0, 1, 0}, Values{1, 0, 0}}) {
        EXPECT_RAISES(signalOf(x, {5, 5, 5})->interpolateQuadratic(0.5, 0), "Math::interpolateQuadratic",
                      "core/algomath.h", "interpolateQuadratic needs 3 distinct points");
    }
    const auto one = counted({8});
    one->setOutOfDomainPolicy(0);
    EXPECT_RAISES(one->interpolateQuadratic(5, 0), "Signal1D::interpolateQuadratic", header,
                  "Can not extrapolate (index = 1; size = 1)");
    one->setOutOfDomainPolicy(2);
    EXPECT_RAISES(one->interpolateQuadratic(5, 0), "Signal1D::interpolateQuadratic", header,
                  "problem in interpolateQuadratic: index = 1; size = 1; x = 5");
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

TEST(IsoSignal, evaluate_raises_where_a_plain_signal_clamps) {
    EXPECT_RAISES(IsoSignal(counted(cubes), 4), "Signal1DIsoSampling::Signal1DIsoSampling", isoHeader,
                  " n should be the same");
    const auto cube = [](std::size_t i) { return cubes[i]; };
    EXPECT_EQ(IsoSignal(0, 1, 3, cube).evaluate(2.5), 13.75); // u + 3u(u - 1), u = 2.5
    const IsoSignal even(0, 1, 4, cube);
    EXPECT_EQ(even.evaluate(1.5), 3);
    EXPECT_EQ(even.evaluate(3.5), 41);    // from the last three points: 1 + 7u + 6u(u - 1), u = 2.5
    EXPECT_EQ(even.evaluate(-0.5), 1.75); // cut to index 0 and extrapolated: u + 3u(u - 1), u = -0.5
    EXPECT_RAISES(even.evaluate(4), "Signal1DIsoSampling::evaluate", isoHeader,
                  "can not extrapolate at X=4: index=4, size=4");
    EXPECT_RAISES(even.evaluate(-1), "Signal1DIsoSampling::evaluate", isoHeader,
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

TEST(SignalText, is_written_with_six_digits_and_read_back) {
    const auto plain = signalOf({0, 0.5, 1}, {-1.5, 3, 0.1234567});
    plain->setNames("pre", "name");
    EXPECT_EQ(written(*plain), "pre.name\n3\n0 -1.5\n0.5 3\n1 0.123457\n");
    const auto again = std::make_shared<Signal>(7);
    std::istringstream text("\n\n" + written(*plain));
    again->read(text);
    EXPECT_EQ(written(*again), written(*plain));
    EXPECT_EQ(again->xmax(), 1);
    std::istringstream nothing("\n\n\n");
    again->read(nothing);
    EXPECT_EQ(written(*again), written(*plain));
    std::istringstream undotted("alone\n0\n");
    again->read(undotted);
    EXPECT_EQ(again->fullName(), "alone.");
    EXPECT_EQ(again->size(), 0U);
}

TEST(SignalText, the_even_form_drops_one_line_and_takes_any_line_end) {
    for (const std::string end : {"\n", "\r", "\r\n"}) {
        const auto signal = std::make_shared<IsoSignal>(0, 1, 0, nullptr);
        std::istringstream text("rest of a line" + end + "a.b.c" + end + "2 5 2" + end + "7" + end + "8" +
                                end);
        signal->read(text);
        EXPECT_EQ(written(*signal), "a.b\n2 5 2\n7\n8\n");
        EXPECT_EQ(signal->xValues(), Values({5, 7}));
        EXPECT_EQ(signal->xmax(), 7);
    }
}

TEST(SignalText, what_can_not_be_read_leaves_the_signal_and_fails_the_stream) {
    const auto plain = counted({1, 2});
    const IsoSignal evenBefore(0, 1, 2, [](std::size_t) { return 4.0; });
    const std::string before = written(*plain);
    for (const std::string tail : {"", "\n", "2", "2\n0 1\n1", "9\n0 1\n1 2\n2 x\n", "-1\n", "many\n",
                                   "2000000000\n0 1\n", "99999999999\n0 1\n", "2\n0 1\n1 1e999\n"}) {
        std::istringstream text("a.b\n" + tail);
        plain->read(text);
        EXPECT_TRUE(text.fail()) << tail;
        EXPECT_EQ(written(*plain), before) << tail;
        IsoSignal even(evenBefore);
        std::istringstream evenText("\na.b\n" + tail);
        even.read(evenText);
        EXPECT_TRUE(evenText.fail()) << tail;
        EXPECT_EQ(written(even), written(evenBefore)) << tail;
    }
}

TEST(SignalText, name_and_count_are_out_when_a_signal_without_points_fails) {
    const auto signal = std::make_shared<Signal>(0);
    std::ostringstream stream;
    EXPECT_RAISES(signal->write(stream), "Signal1D::at", "core/signal1d.h",
                  "try to get an index out of signal's data range; i=0; size=0");
    EXPECT_EQ(stream.str(), ".\n0\n");
    EXPECT_THROW(written(Signal(2)), std::bad_weak_ptr);
}

#include "enginetest.h"

#include <sstream>

using namespace enginetest;

namespace {

std::string written(const Signal& signal) {
    std::ostringstream stream;
    signal.write(stream);
    return stream.str();
}

} // namespace

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
        for (const std::string dropped : {"", "rest of a line"}) {
            const auto signal = std::make_shared<IsoSignal>(0, 1, 0, nullptr);
            std::istringstream text(dropped + end + "a.b.c" + end + "2 5 2" + end + "7" + end + "8" + end);
            signal->read(text);
            EXPECT_EQ(written(*signal), "a.b\n2 5 2\n7\n8\n");
            EXPECT_EQ(signal->xValues(), Values({5, 7}));
            EXPECT_EQ(signal->xmax(), 7);
        }
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

#include "enginetest.h"

using namespace enginetest;

namespace {

using Point = Iterator::PointType;

const auto five = counted({5, 4, 3, 4, 5});

bool even(const Point& point) {
    return point.index % 2 == 0;
}
bool never(const Point&) {
    return false;
}

Iterator walk(std::uint64_t from, const Iterator::Predicate& step) {
    return Iterator(step, five->at(from), false, five);
}

/// Where it stands, with a bar for the end flag.
std::string place(const Iterator& iterator) {
    return std::to_string(iterator->index) + (iterator.atEnd() ? "|" : "");
}

} // namespace

TEST(SignalIterator, steps_to_accepted_points_and_flags_the_end_where_it_stops) {
    EXPECT_EQ(place(++walk(2, even)) + place(++walk(3, even)) + place(++walk(4, even)), "444|");
    EXPECT_EQ(place(--walk(2, even)) + place(--walk(1, even)) + place(--walk(0, even)), "000|");
    EXPECT_EQ(place(++walk(1, never)) + place(--walk(3, never)), "4|0|");
    EXPECT_EQ(place(walk(1, never) + 3) + place(walk(1, never) + 4),
              "41|"); // asks nobody, stays past the end
}

TEST(SignalIterator, ends_are_equal_wherever_they_stand) {
    EXPECT_TRUE(walk(2, even) == walk(2, never));
    EXPECT_TRUE(walk(2, even) != walk(3, even));
    EXPECT_TRUE(walk(2, even) + 9 == five->end());
    EXPECT_TRUE(five->begin() != five->begin() + 9);
}

TEST(SignalIterator, a_search_tests_its_start_and_clears_the_flag) {
    Iterator scan = walk(0, even) + 9;
    EXPECT_EQ(place(scan.search(walk(2, never) + 9, true)), "2");
    EXPECT_EQ(place(scan.search(walk(3, never), true)) + place(scan.search(walk(3, never), false)), "24");
    EXPECT_EQ(place(Iterator(never).search(walk(3, even), true)), "0|");
    EXPECT_EQ(scan.search(walk(2, never), false, counted({9, 8, 7}))->y, 7);
}

TEST(SignalIterator, needs_points_a_shared_signal_and_a_predicate) {
    EXPECT_RAISES(std::make_shared<Signal>(0)->begin(), "Signal1D::at", "core/signal1d.h",
                  "try to get an index out of signal's data range; i=0; size=0");
    EXPECT_THROW(Signal(2).begin(), std::bad_weak_ptr);
    EXPECT_THROW(++walk(0, nullptr), std::bad_function_call);
}

TEST(Peak, overlaps_only_where_valleys_cross) {
    const auto peak = [](std::uint64_t left, std::uint64_t right) {
        return Peak(walk(left, even), walk(left, even), walk(right, even));
    };
    EXPECT_TRUE(peak(0, 3).overlaps(peak(2, 4)));
    EXPECT_FALSE(peak(0, 2).overlaps(peak(2, 4)));
    EXPECT_FALSE(peak(2, 3).overlaps(peak(0, 2))); // wholly behind
}

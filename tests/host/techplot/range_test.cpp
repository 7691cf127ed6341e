#include "TViewRange.h"
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

using TechPlot::TViewRange;

TEST(ViewRange, home_leaves_room_and_opens_a_range_of_one_value) {
    TViewRange range;
    range.setHome(QRectF(100, 0, 1000, 200));
    EXPECT_EQ(range.home(), QRectF(100, -6, 1000, 226));
    EXPECT_TRUE(range.isHome());
    range.setHome(QRectF(40, 7, 0, 0));
    EXPECT_LT(range.home().left(), 40);
    EXPECT_GT(range.home().right(), 40);
    EXPECT_GT(range.home().height(), 0);
    const auto large = static_cast<double>(std::numeric_limits<float>::max());
    range.setHome(QRectF(-large, -large, 2 * large, 2 * large));
    EXPECT_TRUE(std::isfinite(range.home().height()));
}

TEST(ViewRange, zoom_keeps_the_centre_in_place_and_move_stops_at_home) {
    TViewRange range;
    range.setHome(QRectF(0, 0, 1000, 100));
    range.zoomTime(0.5, 200);
    EXPECT_NEAR(range.shown().left(), 100, 1e-9);
    EXPECT_NEAR(range.shown().width(), 500, 1e-9);
    EXPECT_DOUBLE_EQ(range.shown().height(), range.home().height());
    range.move(0.1, 0);
    EXPECT_NEAR(range.shown().left(), 150, 1e-9);
    range.move(-10, -10);
    EXPECT_NEAR(range.shown().left(), 0, 1e-9);
    EXPECT_NEAR(range.shown().width(), 500, 1e-9);
    range.zoomTime(4, 100);
    EXPECT_TRUE(range.isHome());
}

TEST(ViewRange, no_command_empties_or_inverts_the_axes) {
    TViewRange range;
    range.setHome(QRectF(0, 0, 1000, 100));
    for (int i = 0; i < 500; ++i)
        range.zoomTime(0.5, 300);
    EXPECT_NEAR(range.shown().width(), 0.1, 1e-9);
    EXPECT_LE(range.shown().left(), 300);
    const QRectF before = range.shown();
    range.zoomTime(0, 300);
    range.zoomTime(-1, 300);
    range.zoomTime(std::nan(""), 300);
    range.move(std::numeric_limits<double>::infinity(), 0);
    range.show(QRectF(std::nan(""), 0, 1, 1));
    EXPECT_EQ(range.shown(), before);
    range.showTime(900, 700);
    EXPECT_NEAR(range.shown().left(), 700, 1e-9);
    EXPECT_NEAR(range.shown().right(), 900, 1e-9);
}

TEST(ViewRange, new_data_keep_a_chosen_part_as_far_as_it_lies_inside) {
    TViewRange range;
    range.setHome(QRectF(0, 0, 1000, 100));
    range.showTime(600, 800);
    range.setHome(QRectF(0, 0, 1200, 50));
    EXPECT_NEAR(range.shown().left(), 600, 1e-9);
    EXPECT_NEAR(range.shown().right(), 800, 1e-9);
    range.setHome(QRectF(0, 0, 700, 50));
    EXPECT_NEAR(range.shown().right(), 700, 1e-9);
    EXPECT_NEAR(range.shown().width(), 200, 1e-9);
}

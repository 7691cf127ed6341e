#include "TPalette.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>

TEST(Palette, stops_stand_evenly_from_one_to_three) {
    const TPalette palette({QColor("green"), QColor("orange"), QColor("orange"), QColor("red")}, "peaks");
    EXPECT_EQ(palette.colorAt(1), QColor(0, 128, 0));
    EXPECT_EQ(palette.colorAt(2), QColor(255, 165, 0));
    EXPECT_EQ(palette.colorAt(3), QColor(255, 0, 0));
    // Three quarters from (0, 128, 0) to (255, 165, 0): 191.25 and 155.75.
    EXPECT_EQ(palette.colorAt(1.5), QColor(191, 156, 0));
    EXPECT_EQ(TPalette({QColor(0, 0, 0, 0), QColor(200, 100, 50, 255)}, "two").colorAt(1.5),
              QColor(50, 25, 13, 64));
}

TEST(Palette, values_off_the_scale_take_an_end) {
    const TPalette palette({Qt::green, Qt::red}, "ends");
    const double infinite = std::numeric_limits<double>::infinity();
    for (const double low : {-infinite, -1e300, 0.0, std::nextafter(1.0, 0.0)}) {
        EXPECT_EQ(palette.colorAt(low), QColor(Qt::green)) << low;
    }
    for (const double high : {std::nan(""), infinite, 3.5}) {
        EXPECT_EQ(palette.colorAt(high), QColor(Qt::red)) << high;
    }
    EXPECT_FALSE(TPalette({}, "none").colorAt(2).isValid());
    EXPECT_EQ(TPalette({Qt::blue}, "one").colorAt(2), QColor(Qt::blue));
}

TEST(Palette, the_value_next_below_three_stays_on_the_scale_for_any_number_of_stops) {
    for (int stops = 2; stops < 400; ++stops) {
        QList<QColor> colors = QVector<QColor>(stops, Qt::black).toList();
        colors.last() = QColor(Qt::white);
        const QColor color = TPalette(colors, "many").colorAt(std::nextafter(3.0, 0.0));
        ASSERT_EQ(color, QColor(Qt::white)) << stops;
    }
}

TEST(Palette, a_name_finds_the_latest_living_palette) {
    EXPECT_EQ(TPalette::find("PeakColors"), nullptr);
    auto first = std::make_unique<TPalette>(QList<QColor>{Qt::green}, "PeakColors");
    auto second = std::make_unique<TPalette>(QList<QColor>{Qt::blue}, "PeakColors");
    const TPalette other({Qt::gray}, "Other");
    EXPECT_EQ(TPalette::find("PeakColors"), second.get());
    EXPECT_EQ(first->colorAt(2), QColor(Qt::green)) << "the palette that was replaced stays as it is";
    second.reset();
    EXPECT_EQ(TPalette::find("PeakColors"), first.get());
    first.reset();
    EXPECT_EQ(TPalette::find("PeakColors"), nullptr);
    EXPECT_EQ(TPalette::find("Other"), &other);
}

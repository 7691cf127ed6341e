#include "rockeval/channels.h"
#include "rockeval/number.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

using rockeval::parseNumber;

TEST(ParseNumber, reads_every_form_the_analyser_and_its_users_write) {
    struct Case {
        const char* text;
        double number;
    };
    for (const Case& c : {Case{"-17", -17}, Case{"+17", 17}, Case{"  42 \t", 42}, Case{"1.5E-02", 0.015},
                          Case{"1,5e+3", 1500}, Case{"-0,125", -0.125}, Case{",5", 0.5}, Case{"+.5", 0.5},
                          Case{"18446744073709551616", std::ldexp(1.0, 64)}}) // beyond 64 bits
        EXPECT_EQ(parseNumber(c.text), c.number) << c.text;
}

TEST(ParseNumber, takes_nothing_that_is_not_one_finite_number) {
    for (const char* field :
         {"",    " ",   "-",   "+",    ".",   ",",   "e5",   "1e",  "1 000",  "1.234,5", "1,2,3",
          "+-1", "-+1", "--1", "0x10", "12a", "inf", "-inf", "nan", "NaN(1)", "1e999",   "1\xC2\xA0"})
        EXPECT_FALSE(parseNumber(field)) << field;
}

TEST(ParseNumber, a_number_has_at_most_sixty_four_characters) {
    const std::string point = "0." + std::string(61, '0') + "5";
    std::string comma = point;
    comma[1] = ',';
    EXPECT_EQ(parseNumber(point), 5e-62);
    EXPECT_EQ(parseNumber(comma), parseNumber(point));
    EXPECT_FALSE(parseNumber("0" + point));
}

TEST(Channels, narrowing_gives_the_nearest_float_and_refuses_what_has_none) {
    const rockeval::Channels channels = rockeval::toChannels({{0.0, 16777217.0}, {0.1, -3.5}});
    EXPECT_EQ(channels.time, (std::vector<float>{0.0F, 16777216.0F}));
    EXPECT_EQ(channels.fid, (std::vector<float>{0.1F, -3.5F}));

    const double largest = std::numeric_limits<float>::max();
    EXPECT_EQ(rockeval::narrow(-largest), -std::numeric_limits<float>::max());
    EXPECT_THROW(rockeval::narrow(largest * 1.01), std::range_error);
    EXPECT_THROW(rockeval::narrow(std::nan("")), std::range_error);
    EXPECT_THROW(rockeval::narrow(-std::numeric_limits<double>::infinity()), std::range_error);
}

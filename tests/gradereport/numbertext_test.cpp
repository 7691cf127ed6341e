#include "gradereport/shortestnumber.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <random>

using gradereport::fixedNumber;
using gradereport::shortestNumber;

TEST(NumberText, shortest_reads_back_to_the_same_double_in_the_fewest_digits) {
    std::mt19937_64 random(20240611);
    for (int i = 0; i < 10000; ++i) {
        const std::uint64_t bits = random();
        double value = 0.0;
        std::memcpy(&value, &bits, sizeof value);
        if (std::isfinite(value)) {
            const double back = std::strtod(shortestNumber(value).c_str(), nullptr);
            ASSERT_EQ(std::memcmp(&back, &value, sizeof value), 0) << shortestNumber(value);
        }
    }
    EXPECT_EQ(shortestNumber(0.1), "0.1");
    EXPECT_EQ(shortestNumber(-0.0), "-0");
    EXPECT_EQ(shortestNumber(static_cast<double>(0.1F)), "0.10000000149011612");
    EXPECT_EQ(shortestNumber(std::numeric_limits<double>::denorm_min()), "5e-324");
}

TEST(NumberText, fixed_rounds_drops_the_sign_of_zero_and_stays_short) {
    EXPECT_EQ(fixedNumber(719.25, 1), "719.2");
    EXPECT_EQ(fixedNumber(-0.04, 1), "0.0");
    EXPECT_EQ(fixedNumber(-0.06, 1), "-0.1");
    EXPECT_EQ(fixedNumber(999999999.0, 1), "999999999.0");
    EXPECT_EQ(fixedNumber(-std::numeric_limits<double>::max(), 1), "-1.798e+308");
    EXPECT_EQ(fixedNumber(std::nan(""), 1), "\u2013");
    EXPECT_EQ(fixedNumber(std::numeric_limits<double>::infinity(), 1), "\u2013");
}

#include "gradereport/shortestnumber.h"
#include "gradereport/utf8text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <random>

using namespace gradereport;

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

TEST(Utf8Text, each_byte_that_belongs_to_no_sequence_becomes_one_replacement) {
    for (const std::string& text :
         {std::string("a\u00e9\u20ac\U0001F600\0end", 14),
          std::string("\u007F\u0080\u07FF\u0800\uD7FF\uE000\uFFFF\U00010000\U0010FFFF")})
        EXPECT_EQ(validUtf8(text), text);
    const std::pair<const char*, const char*> cases[] = {
        {"a\xff\xfeg", "a\uFFFD\uFFFDg"},
        {"\xe2\x82", "\uFFFD\uFFFD"},   // cut sequence
        {"\xe2\x82x", "\uFFFD\uFFFDx"}, // the letter behind it stays
        {"\x80", "\uFFFD"},             // tail without head
        {"\xc0\xaf", "\uFFFD\uFFFD"},   // overlong slashes
        {"\xe0\x80\xaf", "\uFFFD\uFFFD\uFFFD"},
        {"\xed\xa0\x80", "\uFFFD\uFFFD\uFFFD"},            // surrogate
        {"\xf4\x90\x80\x80", "\uFFFD\uFFFD\uFFFD\uFFFD"}}; // past the last code point
    for (const auto& [bytes, valid] : cases)
        EXPECT_EQ(validUtf8(bytes), valid);
}

TEST(Utf8Text, visible_text_has_no_effect_on_a_terminal_or_a_line) {
    EXPECT_EQ(visibleText("a\x1b[31m\n\r\t\x7f"), "a\u241b[31m\u240a\u240d\u2409\u2421");
    EXPECT_EQ(visibleText("\u009b31m"), "\uFFFD31m") << "the one-byte form of an escape sequence";
    EXPECT_EQ(visibleText("a\u202egpj.S00\u2066"), "a\uFFFDgpj.S00\uFFFD") << "reading order";
    EXPECT_EQ(visibleText("\u00e9 \u6f22"), "\u00e9 \u6f22");
}

TEST(Utf8Text, shortening_keeps_whole_letters_and_counts_columns_not_bytes) {
    EXPECT_EQ(displayWidth("a\u00e9\u20ac"), 3U);
    EXPECT_EQ(displayWidth("e\u0301"), 1U);
    EXPECT_EQ(displayWidth("\u6f22\u5b57"), 4U);
    EXPECT_EQ(displayWidth("\xff\xff"), 2U);
    EXPECT_EQ(shortenedInMiddle("abcdefgh", 8), "abcdefgh");
    EXPECT_EQ(shortenedInMiddle("abcdefghi", 8), "abcd\u2026ghi");
    EXPECT_EQ(shortenedInMiddle("\u6f22\u6f22\u6f22\u6f22\u6f22", 6), "\u6f22\u2026\u6f22");
    EXPECT_EQ(shortenedInMiddle("abc", 1), "\u2026");
    EXPECT_EQ(shortenedInMiddle("abc", 0), "");
    EXPECT_EQ(shortenedAtEnd("abcdef", 6), "abcdef");
    EXPECT_EQ(shortenedAtEnd("abcd\u00e9\u00e9\u00e9", 6), "abcd\u00e9\u2026");
}

#include "gradereport/utf8text.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

using namespace gradereport;

TEST(Utf8Text, well_formed_text_of_every_length_stays) {
    const std::string text("a\u00e9\u20ac\U0001F600\0end", 14);
    EXPECT_EQ(validUtf8(text), text);
    EXPECT_EQ(validUtf8("\u007F\u0080\u07FF\u0800\uD7FF\uE000\uFFFF\U00010000\U0010FFFF"),
              "\u007F\u0080\u07FF\u0800\uD7FF\uE000\uFFFF\U00010000\U0010FFFF");
}

TEST(Utf8Text, each_byte_that_belongs_to_no_sequence_becomes_one_replacement) {
    const std::vector<std::pair<std::string, std::string>> cases{
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

TEST(Utf8Text, width_counts_columns_not_bytes) {
    EXPECT_EQ(displayWidth("a\u00e9\u20ac"), 3U);
    EXPECT_EQ(displayWidth("e\u0301"), 1U);
    EXPECT_EQ(displayWidth("\u6f22\u5b57"), 4U);
    EXPECT_EQ(displayWidth("\xff\xff"), 2U);
}

TEST(Utf8Text, shortening_keeps_whole_letters_and_the_width) {
    EXPECT_EQ(shortenedInMiddle("abcdefgh", 8), "abcdefgh");
    EXPECT_EQ(shortenedInMiddle("abcdefghi", 8), "abcd\u2026ghi");
    EXPECT_EQ(shortenedInMiddle("\u6f22\u6f22\u6f22\u6f22\u6f22", 6), "\u6f22\u2026\u6f22");
    EXPECT_EQ(shortenedInMiddle("abc", 1), "\u2026");
    EXPECT_EQ(shortenedInMiddle("abc", 0), "");
    EXPECT_EQ(shortenedAtEnd("abcdef", 6), "abcdef");
    EXPECT_EQ(shortenedAtEnd("abcd\u00e9\u00e9\u00e9", 6), "abcd\u00e9\u2026");
}

#include "rockeval/readerror.h"
#include "rockeval/resultreader.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using rockeval::ReadError;
using rockeval::ResultTable;

ResultTable read(std::string_view text) {
    return rockeval::readResults(text, "core.R00");
}

std::string value(const ResultTable& table, std::string_view section, std::string_view key) {
    const std::string* const found = table.find(section, key);
    return found != nullptr ? *found : "(none)";
}

} // namespace

TEST(ReadResults, sections_and_entries_keep_their_order_and_are_found_in_either_case) {
    const ResultTable table =
        read("[Results_1]\r\nVMax_2=812\r\nTime_2=7,25\r\n\r\n[Param]\r\nWell = A 1 \r\nUnit=\r\n");
    ASSERT_EQ(table.sections.size(), 2U);
    EXPECT_EQ(table.sections[0].name, "Results_1");
    EXPECT_EQ(table.sections[1].name, "Param");
    EXPECT_EQ(table.sections[1].line, 5U);
    ASSERT_EQ(table.sections[1].entries.size(), 2U);
    EXPECT_EQ(table.sections[1].entries[1].key, "Unit");
    EXPECT_EQ(table.sections[1].entries[1].line, 7U);
    EXPECT_EQ(value(table, "PARAM", "well"), "A 1");
    EXPECT_EQ(value(table, "param", "UNIT"), "");
    EXPECT_EQ(value(table, "param", "VMax_2"), "(none)");
    EXPECT_EQ(value(table, "other", "Well"), "(none)");
    EXPECT_EQ(table.number("results_1", "vmax_2"), 812.0);
    EXPECT_EQ(table.number("results_1", "Time_2"), 7.25);
    EXPECT_FALSE(table.number("Param", "Well"));
    EXPECT_FALSE(table.number("Param", "Unit"));
    EXPECT_TRUE(table.warnings.empty());
}

TEST(ReadResults, a_value_may_hold_equals_signs_semicolons_and_formulas) {
    const ResultTable table = read("[Calcul]\nTXT_1=ROUND((a*100/b);2)\nTXT_2=x==y;[z]\n");
    EXPECT_EQ(value(table, "calcul", "txt_1"), "ROUND((a*100/b);2)");
    EXPECT_EQ(value(table, "calcul", "txt_2"), "x==y;[z]");
}

TEST(ReadResults, oddities_are_kept_and_warned_about) {
    const ResultTable table = read("early=1\r[A]\rk=1\rK=2\rremark\r=3\r[B]\rk=4\r[a]\rk=5\rm=6\r[C\r");
    ASSERT_EQ(table.sections.size(), 5U);
    EXPECT_EQ(value(table, "", "early"), "1");
    EXPECT_EQ(value(table, "a", "k"), "1");
    EXPECT_EQ(value(table, "b", "k"), "4");
    EXPECT_EQ(value(table, "a", "m"), "6");
    ASSERT_EQ(table.sections[1].entries.size(), 4U);
    EXPECT_EQ(table.sections[1].entries[1].value, "2");
    EXPECT_EQ(table.sections[1].entries[2].key, "");
    EXPECT_EQ(table.sections[1].entries[2].value, "remark");
    EXPECT_EQ(table.sections[1].entries[3].value, "3");

    const std::vector<std::pair<std::size_t, std::string>> expected = {
        {1, "before the first section"}, {4, "key \"K\" occurs again"},     {5, "\"remark\" has no key"},
        {6, "\"=3\" has no key"},        {9, "section \"a\" occurs again"}, {12, "section \"C\" lacks"}};
    ASSERT_EQ(table.warnings.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(table.warnings[i].line, expected[i].first);
        EXPECT_NE(table.warnings[i].text.find(expected[i].second), std::string::npos)
            << table.warnings[i].text;
    }
}

TEST(ReadResults, text_comes_out_as_utf8_whatever_the_file_holds) {
    const ResultTable table =
        read("\xEF\xBB\xBF[R\xE9s]\na=caf\xE9 \x80\x81\nb=caf\xC3\xA9 \xF0\x9F\x9B\xA2\n"
             "c=\xC0\xAF\nd=\xED\xA0\x80\ne=\xC3");
    EXPECT_EQ(table.sections[0].name, "R\xC3\xA9s");
    const auto text = [&table](const char* key) { return value(table, "R\xC3\xA9s", key); };
    EXPECT_EQ(text("a"), "caf\xC3\xA9 \xE2\x82\xAC\xEF\xBF\xBD");
    EXPECT_EQ(text("b"), "caf\xC3\xA9 \xF0\x9F\x9B\xA2");
    EXPECT_EQ(text("c"), "\xC3\x80\xC2\xAF");             // an overlong form is no UTF-8
    EXPECT_EQ(text("d"), "\xC3\xAD\xC2\xA0\xE2\x82\xAC"); // nor is a surrogate
    EXPECT_EQ(text("e"), "\xC3\x83");                     // nor a sequence cut off
    EXPECT_TRUE(table.warnings.empty());
}

TEST(ReadResults, what_is_no_result_file_is_refused) {
    using namespace std::string_literals;
    for (const std::string& text : {""s, "\n\n"s, "a=1\nb=2\n"s, "[A]\na=\0"s, "\xFF\xFE[\0A\0]\0"s})
        EXPECT_THROW(read(text), ReadError);

    std::string many = "[A]\n";
    for (std::size_t i = 1; i < rockeval::maxResultLines; ++i)
        many += "x\n";
    EXPECT_EQ(read(many).warnings.size(), 101U);
    many += "\n\n[]\n";
    try {
        read(many);
        FAIL() << "not refused";
    } catch (const ReadError& error) {
        EXPECT_EQ(error.line(), rockeval::maxResultLines + 3);
    }
}

#include "readertest.h"

#include "rockeval/resultreader.h"

namespace {

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
    const ResultTable table = read("[Results_1]\r\nVMax_2=812\r\nTime_2=7,25\r\n\r\n[Param]\r\nWell = A 1 "
                                   "\r\nUnit=\r\nTXT=ROUND((a*100/b);2)==[z]\n");
    ASSERT_EQ(table.sections.size(), 2U);
    EXPECT_EQ(table.sections[0].name + table.sections[1].name, "Results_1Param");
    EXPECT_EQ(table.sections[1].line, 5U);
    ASSERT_EQ(table.sections[1].entries.size(), 3U);
    EXPECT_EQ(table.sections[1].entries[1].key, "Unit");
    EXPECT_EQ(table.sections[1].entries[1].line, 7U);
    EXPECT_EQ(value(table, "PARAM", "well"), "A 1");
    EXPECT_EQ(value(table, "param", "UNIT"), "");
    EXPECT_EQ(value(table, "param", "txt"), "ROUND((a*100/b);2)==[z]"); // the first equals sign divides
    EXPECT_EQ(value(table, "param", "VMax_2"), "(none)");
    EXPECT_EQ(table.number("results_1", "vmax_2"), 812.0);
    EXPECT_EQ(table.number("results_1", "Time_2"), 7.25);
    EXPECT_FALSE(table.number("Param", "Well"));
    EXPECT_FALSE(table.number("Param", "Unit"));
    EXPECT_TRUE(table.warnings.empty());
}

TEST(ReadResults, oddities_are_kept_and_warned_about) {
    const ResultTable table = read("early=1\r[A]\rk=1\rK=2\rremark\r=3\r[B]\rk=4\r[a]\rk=5\rm=6\r[C\r");
    ASSERT_EQ(table.sections.size(), 5U);
    EXPECT_EQ(value(table, "", "early"), "1");
    EXPECT_EQ(value(table, "a", "k"), "1");
    EXPECT_EQ(value(table, "b", "k"), "4");
    EXPECT_EQ(value(table, "a", "m"), "6");
    std::string entries;
    for (const auto& entry : table.sections[1].entries)
        entries += entry.key + ":" + entry.value + " ";
    EXPECT_EQ(entries, "k:1 K:2 :remark :3 ");

    expectWarnings(table.warnings,
                   {"1 before the first section", "4 key \"K\" occurs again", "5 \"remark\" has no key",
                    "6 \"=3\" has no key", "9 section \"a\" occurs again", "12 section \"C\" lacks"});
}

TEST(ReadResults, text_comes_out_as_utf8_whatever_the_file_holds) {
    const ResultTable table =
        read("\xEF\xBB\xBF[R\xE9s]\na=caf\xE9 \x80\x81\nb=caf\xC3\xA9 \xF0\x9F\x9B\xA2\n"
             "c=\xC0\xAF\nd=\xED\xA0\x80\ne=\xC3\nf=\xE0\x9F\xBF");
    const auto text = [&table](const char* key) { return value(table, "R\xC3\xA9s", key); };
    EXPECT_EQ(text("a"), "caf\xC3\xA9 \xE2\x82\xAC\xEF\xBF\xBD");
    EXPECT_EQ(text("b"), "caf\xC3\xA9 \xF0\x9F\x9B\xA2");
    // Neither an overlong form nor a surrogate nor a sequence cut off is UTF-8.
    EXPECT_EQ(text("c") + text("d") + text("e"), "\xC3\x80\xC2\xAF\xC3\xAD\xC2\xA0\xE2\x82\xAC\xC3\x83");
    EXPECT_EQ(text("f"), "\xC3\xA0\xC5\xB8\xC2\xBF");
    EXPECT_TRUE(table.warnings.empty());
}

TEST(ReadResults, what_is_no_result_file_is_refused) {
    using namespace std::string_literals;
    for (const auto& [text, line] :
         {std::pair{""s, "1"}, std::pair{"\n\n"s, "2"}, std::pair{"a=1\nb=2\n"s, "2"},
          std::pair{"[A]\na=\0"s, "2"}, std::pair{"\xFF\xFE[\0A\0]\0"s, "1"}}) {
        const std::string& bytes = text;
        expectRefusal([&bytes] { return read(bytes); }, "core.R00, line " + std::string(line), "");
    }
    std::string many = "[A]\n";
    for (std::size_t i = 1; i < rockeval::maxResultLines; ++i)
        many += "x\n";
    EXPECT_EQ(read(many).warnings.size(), 101U);
    many += "\n\n[]\n";
    expectRefusal([&] { return read(many); },
                  "core.R00, line " + std::to_string(rockeval::maxResultLines + 3), "lines");
}

TEST(French, a_remark_keeps_what_stood_in_the_file_and_is_not_taken_in_half) {
    using rockeval::inFrench;
    EXPECT_EQ(inFrench("line 6: missing seconds: 8 between 0 s and 9 s"),
              "ligne 6 : secondes manquantes : 8 entre 0 s et 9 s");
    EXPECT_EQ(
        inFrench("row left out: \"x between y\" in the column FID is not a number that can be stored"),
        "ligne laissée de côté : \"x between y\", dans la colonne FID, n'est pas un nombre qui peut être "
        "enregistré");
    for (const char* const other : {"line x: missing", "line ", "a text of nobody", "missing seconds: 3"})
        EXPECT_EQ(inFrench(other), other);
}

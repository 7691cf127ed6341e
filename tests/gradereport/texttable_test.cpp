#include "samplerecord.h"

#include "gradereport/texttable.h"
#include "gradereport/utf8text.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

using namespace gradereport;

namespace {

GradeRecord named(const std::string& name, int quality) {
    GradeRecord record = sampleRecord();
    record.name = name;
    record.quality = quality;
    if (quality == 0)
        record.peaks.clear();
    if (quality == 5)
        record.reason += "\x1b[2J" + std::string(60, 'r');
    return record;
}

/// One file of each kind and two hostile names.
std::vector<std::string> linesOf(bool colour, std::size_t width) {
    std::stringstream text;
    TextTable table(text, colour, width);
    table.add(named("a.S00", 1));
    table.add(named("\u6f22\u5b57.S00", 2));
    table.add(named("e\u0301\x1b[31m\n.S00", 3));
    table.add(named(std::string(10000, 'n') + "7.S00", 0));
    table.add(named("f.S00", 5));
    table.addFailure({"runs/b\x1b]0;x\x07.S00", "\x1b[2J" + std::string(200, 'e')});
    table.finish();
    std::vector<std::string> lines;
    for (std::string line; std::getline(text, line);)
        lines.push_back(line);
    return lines;
}

std::string withoutColour(std::string line) {
    for (std::size_t start = line.find('\x1b'); start != std::string::npos; start = line.find('\x1b'))
        line.erase(start, line.find('m', start) - start + 1);
    return line;
}

} // namespace

TEST(TextTable, columns_stand_below_their_headings) {
    const std::vector<std::string> lines = linesOf(false, 0);
    ASSERT_EQ(lines.size(), 8U);
    const std::size_t reason = displayWidth(lines[0].substr(0, lines[0].find("reason")));
    const std::size_t grade = displayWidth(lines[0].substr(0, lines[0].find("grade")));
    const std::vector<std::string> grades{"good", "double", "flat", "\u2013 0", "\u2013 5"};
    for (std::size_t i = 0; i < grades.size(); ++i) {
        const std::string& line = lines[i + 1];
        EXPECT_EQ(displayWidth(line.substr(0, line.find("Two peaks stand."))), reason) << line;
        EXPECT_EQ(displayWidth(line.substr(0, line.find("  " + grades[i]) + 2)), grade) << line;
    }
    EXPECT_NE(lines[1].find("    2       70.1        90.0       10.5  Two"), std::string::npos) << lines[1];
    EXPECT_NE(lines[4].find("n7.S00"), std::string::npos) << "the end of a long name tells samples apart";
}

TEST(TextTable, the_closing_line_counts_only_what_there_is) {
    EXPECT_EQ(linesOf(false, 0).back(),
              "5 graded: 1 good, 1 double, 1 flat, 1 without a peak, 1 other; 1 failed");
    std::ostringstream text;
    TextTable table(text, false, 0);
    table.add(named("a.S00", 1));
    table.finish();
    EXPECT_NE(text.str().find("\n1 graded: 1 good\n"), std::string::npos);
}

TEST(TextTable, no_text_of_a_file_reaches_the_terminal_as_an_escape_sequence) {
    for (const std::string& line : linesOf(false, 0))
        EXPECT_EQ(line.find_first_of("\x1b\x07\r\t"), std::string::npos) << line;
}

TEST(TextTable, colour_changes_nothing_but_colour) {
    const std::vector<std::string> plain = linesOf(false, 120);
    const std::vector<std::string> coloured = linesOf(true, 120);
    ASSERT_EQ(plain.size(), coloured.size());
    EXPECT_NE(coloured[1].find("\x1b[32mgood\x1b[0m"), std::string::npos);
    for (std::size_t i = 0; i < plain.size(); ++i)
        EXPECT_EQ(withoutColour(coloured[i]), plain[i]);
}

TEST(TextTable, reasons_fit_the_width_and_errors_are_whole) {
    const std::vector<std::string> lines = linesOf(false, 106);
    EXPECT_EQ(displayWidth(lines[5]), 106U) << lines[5];
    EXPECT_EQ(lines[5].substr(lines[5].size() - 3), "\u2026");
    EXPECT_NE(lines[6].find(std::string(200, 'e')), std::string::npos);
    for (const std::string& narrow : linesOf(false, 80))
        EXPECT_EQ(narrow.find("Two peaks"), std::string::npos);
}

#include "rockeval/channels.h"
#include "rockeval/readerror.h"
#include "rockeval/signalreader.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

namespace {

using rockeval::RawSignal;
using rockeval::ReadError;
using Values = std::vector<double>;

RawSignal read(std::string_view text) {
    return rockeval::readSignal(text, "core.S00");
}

/// Three seconds of pyrolysis and one of oxidation.
const std::string small =
    "\r\n[Curves pyro]\r\n0\t300\t100\t0\t7\r\n1\t300\t250\t0\t8\r\n2\t299\t90\t1\t9\r\n\r\n"
    "[Curves oxi]\r\n0\t300\t5\t6\r\n";

std::string replaced(std::string text, const std::string& from, const std::string& to) {
    for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
    return text;
}

void expectSmall(const RawSignal& signal) {
    EXPECT_EQ(signal.curve.time, (Values{0, 1, 2}));
    EXPECT_EQ(signal.curve.fid, (Values{100, 250, 90}));
    EXPECT_TRUE(signal.warnings.empty()) << signal.warnings.front().text;
}

void expectWarning(const RawSignal& signal, std::size_t index, std::size_t line, const std::string& part) {
    ASSERT_LT(index, signal.warnings.size());
    EXPECT_EQ(signal.warnings[index].line, line);
    EXPECT_NE(signal.warnings[index].text.find(part), std::string::npos) << signal.warnings[index].text;
}

void expectRefusal(std::string_view text, std::size_t line, const std::string& part) {
    try {
        read(text);
        FAIL() << "not refused";
    } catch (const ReadError& error) {
        const std::string what = error.what();
        EXPECT_EQ(error.line(), line);
        EXPECT_EQ(error.fileName(), "core.S00");
        EXPECT_EQ(what.rfind("core.S00, line " + std::to_string(line) + ": ", 0), 0U) << what;
        EXPECT_NE(what.find(part), std::string::npos) << what;
    }
}

double secondsFor(const std::string& text) {
    const auto begin = std::chrono::steady_clock::now();
    try {
        read(text);
    } catch (const ReadError&) {
    }
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

} // namespace

TEST(ReadSignal, line_endings_marks_and_blanks_do_not_matter) {
    expectSmall(read(small));
    expectSmall(read(replaced(small, "\r\n", "\n")));
    expectSmall(read(replaced(small, "\r\n", "\r")));
    expectSmall(read("\xEF\xBB\xBF" + small));
    expectSmall(read("\xEF\xBB\xBF" + small.substr(2)));
    expectSmall(read(replaced(small, "\r\n", "\t\t \r\n")));
    expectSmall(read(replaced(small, "\t", " \t ")));
    expectSmall(read(replaced(small, "[Curves pyro]", " \t[ CURVES Pyro ]  ")));
    expectSmall(read("Op\xE9rateur;\xB0"
                     "C\r\n" +
                     small)); // Windows-1252
}

TEST(ReadSignal, sections_may_stand_in_any_order_or_be_absent) {
    const std::size_t oxidation = small.find("[Curves oxi]");
    expectSmall(read(small.substr(oxidation) + "\r\n" + small.substr(0, oxidation)));
    expectSmall(read(small.substr(0, oxidation)));
    expectSmall(read(replaced(small, "[Curves oxi]", "[Curves oxi]\r\n[Other\r\n\tx")));
}

TEST(ReadSignal, decimals_exponents_and_signs_are_read_to_the_nearest_double) {
    const RawSignal signal = read("[Curves pyro]\n-0,5\t1\t1,526247E-02\n+0.5\tx\t-12.5\n1.5\t\t1e3\n");
    EXPECT_EQ(signal.curve.time, (Values{-0.5, 0.5, 1.5}));
    EXPECT_EQ(signal.curve.fid, (Values{0.01526247, -12.5, 1000.0}));
    EXPECT_TRUE(signal.warnings.empty());
}

TEST(ReadSignal, unusable_rows_are_left_out_and_named) {
    const RawSignal signal =
        read("[Curves pyro]\n0\t1\t10\n1\t1\n2\n3\t1\tabc\n\xE9\t1\t5\n4\t1\t1e39\n5\t1\t\t8\n"
             "\t6\t7\n1\t1\t20\n");
    EXPECT_EQ(signal.curve.time, (Values{0, 1}));
    EXPECT_EQ(signal.curve.fid, (Values{10, 20}));
    ASSERT_EQ(signal.warnings.size(), 7U);
    expectWarning(signal, 0, 3, "fewer than the three columns");
    expectWarning(signal, 1, 4, "fewer than the three columns");
    expectWarning(signal, 2, 5, "\"abc\" in the column FID");
    expectWarning(signal, 3, 6, "\"?\" in the column time");
    expectWarning(signal, 4, 7, "\"1e39\" in the column FID");
    expectWarning(signal, 5, 8, "\"\" in the column FID");
    expectWarning(signal, 6, 9, "\"\" in the column time");
}

TEST(ReadSignal, missing_seconds_are_counted_and_not_filled) {
    const RawSignal signal =
        read("[Curves pyro]\r\n0\t1\t1\r\n1.4\t1\t2\r\n5\t1\t3\r\n5.5\t1\t4\r\n7\t1\t5\r\n");
    EXPECT_EQ(signal.curve.time, (Values{0, 1.4, 5, 5.5, 7}));
    ASSERT_EQ(signal.warnings.size(), 2U);
    expectWarning(signal, 0, 4, "missing seconds: 3 between 1.4 s and 5 s");
    expectWarning(signal, 1, 6, "missing seconds: 1 between 5.5 s and 7 s");
}

TEST(ReadSignal, times_ascend_strictly_even_as_floats) {
    const RawSignal signal =
        read("[Curves pyro]\n0\t1\t1\n0\t1\t2\n1\t1\t3\n0.5\t1\t4\n1.00000001\t1\t5\n2\t1\t6\n-3\t1\t7\n");
    EXPECT_EQ(signal.curve.time, (Values{0, 1, 2}));
    EXPECT_EQ(signal.curve.fid, (Values{1, 3, 6}));
    ASSERT_EQ(signal.warnings.size(), 4U);
    expectWarning(signal, 0, 3, "0 s is not above the last one, 0 s");
    expectWarning(signal, 1, 5, "0.5 s is not above");
    expectWarning(signal, 2, 6, "1.00000001 s is not above");
    expectWarning(signal, 3, 8, "-3 s is not above");
}

TEST(ReadSignal, of_doubled_files_the_first_curve_counts) {
    const std::string longer = replaced(small, "2\t299\t90", "9\t299\t90");
    for (const std::string& second : {longer, "\xEF\xBB\xBF" + longer.substr(2)}) {
        const RawSignal signal = read(small + second);
        EXPECT_EQ(signal.curve.fid, (Values{100, 250, 90}));
        ASSERT_EQ(signal.warnings.size(), 1U);
        expectWarning(signal, 0, second == longer ? 10 : 9, "further section [Curves pyro]");
    }
    const RawSignal adjacent =
        read("[Curves pyro]\n0\t1\t1\n\xEF\xBB\xBF\t[Curves pyro]\n1\t1\t2\n[Curves pyro]");
    EXPECT_EQ(adjacent.curve.fid, (Values{1}));
    ASSERT_EQ(adjacent.warnings.size(), 2U);
    expectWarning(adjacent, 0, 3, "further section");
    expectWarning(adjacent, 1, 5, "further section");
}

TEST(ReadSignal, a_file_cut_anywhere_gives_leading_points_or_an_error) {
    const std::size_t rows = small.find("]\r\n") + 3;
    for (std::size_t length = 0; length < small.size(); ++length) {
        const std::string cut = small.substr(0, length);
        // The first row is there once its first FID digit is.
        if (length < rows + 7) {
            EXPECT_THROW(read(cut), ReadError) << length;
            continue;
        }
        const RawSignal signal = read(cut);
        ASSERT_LE(signal.curve.time.size(), 3U);
        for (std::size_t i = 0; i < signal.curve.time.size(); ++i) {
            EXPECT_EQ(signal.curve.time[i], static_cast<double>(i));
            if (signal.curve.fid[i] != Values({100, 250, 90})[i])
                expectWarning(signal, 0, i + 3, "cut off");
        }
    }
}

TEST(ReadSignal, what_is_no_signal_is_refused_in_one_sentence_with_its_line) {
    expectRefusal("", 1, "empty");
    expectRefusal("\xEF\xBB\xBF", 1, "empty");
    expectRefusal("\n\n0\t1\t2\n", 3, "without a section [Curves pyro]");
    expectRefusal("[Curves oxi]\r\n0\t1\t2", 2, "without a section [Curves pyro]");
    expectRefusal("[Curves pyrolysis]\n0\t1\t2", 2, "without a section [Curves pyro]");
    expectRefusal("\r\n[Curves pyro]\r\n\r\nx\r\n[Curves oxi]\r\n0\t1\t2", 2, "no row");
    expectRefusal("\xFF\xFE[\n", 1, "UTF-16");
    expectRefusal("\xFE\xFF[\n", 1, "UTF-16");
    using namespace std::string_literals;
    expectRefusal("[Curves pyro]\n0\t1\t2\n\0\0"s, 3, "binary");
    std::string noise(5000, '\0');
    unsigned state = 1;
    for (char& c : noise) {
        state = state * 1664525U + 1013904223U;
        c = static_cast<char>(state >> 24);
    }
    EXPECT_THROW(read(noise), ReadError);
}

TEST(ReadSignal, warnings_end_after_a_hundred_with_a_count) {
    std::string text = "[Curves pyro]\n0\t1\t1\n";
    for (int i = 0; i < 250; ++i)
        text += "x\ty\tz\n";
    const RawSignal signal = read(text);
    ASSERT_EQ(signal.warnings.size(), 101U);
    expectWarning(signal, 99, 102, "row left out");
    expectWarning(signal, 100, 103, "and 150 more");
}

TEST(ReadSignal, hostile_input_takes_time_in_proportion_to_its_size) {
    const std::size_t size = std::size_t{1} << 22;
    const std::string head = "[Curves pyro]\n0\t1\t1\n";
    std::string brackets(size, '[');
    for (std::size_t i = 1; i < size; i += 2)
        brackets[i] = '\r';
    for (const std::string& tail :
         {std::string(size, '\n'), std::string(size, '\r'), std::string(size, '\t'), std::string(size, ' '),
          std::string(size, '['), std::string(size, '1'), brackets, "[Curves oxi]\n" + brackets}) {
        // Quadratic work on four million bytes would take hours; the bound leaves room for a sanitizer.
        EXPECT_LT(secondsFor(head + tail), 10.0);
        EXPECT_LT(secondsFor(tail), 10.0);
    }
}

#include "readertest.h"

#include "rockeval/signalreader.h"

#include <chrono>

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

} // namespace

TEST(ReadSignal, line_endings_marks_blanks_and_the_order_of_sections_do_not_matter) {
    const std::size_t oxidation = small.find("[Curves oxi]");
    const std::string mark = "\xEF\xBB\xBF";
    for (const std::string& text :
         {small, replaced(small, "\r\n", "\n"), replaced(small, "\r\n", "\r"), mark + small,
          mark + small.substr(2), replaced(small, "\r\n", "\t\t \r\n"), replaced(small, "\t", " \t "),
          replaced(small, "[Curves pyro]", " \t[ CURVES Pyro ]  "),
          "Op\xE9rateur;\xB0"
          "C\r\n" +
              small, // Windows-1252
          small.substr(oxidation) + "\r\n" + small.substr(0, oxidation), small.substr(0, oxidation),
          replaced(small, "[Curves oxi]", "[Curves oxi]\r\n[Other\r\n\tx")}) {
        const RawSignal signal = read(text);
        EXPECT_EQ(signal.curve.time, (Values{0, 1, 2})) << text;
        EXPECT_EQ(signal.curve.fid, (Values{100, 250, 90})) << text;
        EXPECT_TRUE(signal.warnings.empty()) << text;
    }
}

TEST(ReadSignal, rows_are_read_or_left_out_and_named) {
    struct Case {
        std::string rows;
        Values time, fid;
        std::vector<std::string> warnings;
    };
    for (const Case& c :
         {Case{"-0,5\t1\t1,526247E-02\n+0.5\tx\t-12.5\n1.5\t\t1e3\n",
               {-0.5, 0.5, 1.5},
               {0.01526247, -12.5, 1000},
               {}},
          Case{"0\t1\t10\n1\t1\n2\n3\t1\tabc\n\xE9\t1\t5\n4\t1\t1e39\n5\t1\t\t8\n\t6\t7\n1\t1\t20\n",
               {0, 1},
               {10, 20},
               {"3 fewer than the three columns", "4 fewer than the three columns",
                "5 \"abc\" in the column FID", "6 \"?\" in the column time", "7 \"1e39\" in the column FID",
                "8 \"\" in the column FID", "9 \"\" in the column time"}},
          // Missing seconds are counted and not filled.
          Case{"0\t1\t1\n1.4\t1\t2\n5\t1\t3\n5.5\t1\t4\n7\t1\t5\n",
               {0, 1.4, 5, 5.5, 7},
               {1, 2, 3, 4, 5},
               {"4 missing seconds: 3 between 1.4 s and 5 s", "6 missing seconds: 1 between 5.5 s and 7 s"}},
          // Times ascend, even as floats.
          Case{"0\t1\t1\n0\t1\t2\n1\t1\t3\n0.5\t1\t4\n1.00000001\t1\t5\n2\t1\t6\n-3\t1\t7\n",
               {0, 1, 2},
               {1, 3, 6},
               {"3 0 s is not above the last one, 0 s", "5 0.5 s is not above", "6 1.00000001 s is not above",
                "8 -3 s is not above"}}}) {
        const RawSignal signal = read("[Curves pyro]\n" + c.rows);
        EXPECT_EQ(signal.curve.time, c.time) << c.rows;
        EXPECT_EQ(signal.curve.fid, c.fid) << c.rows;
        expectWarnings(signal.warnings, c.warnings);
    }
}

TEST(ReadSignal, of_doubled_files_the_first_curve_counts) {
    const std::string longer = replaced(small, "2\t299\t90", "9\t299\t90");
    for (const std::string& second : {longer, "\xEF\xBB\xBF" + longer.substr(2)}) {
        const RawSignal signal = read(small + second);
        EXPECT_EQ(signal.curve.fid, (Values{100, 250, 90}));
        expectWarnings(signal.warnings,
                       {second == longer ? "10 further section [Curves pyro]" : "9 further section"});
    }
    const RawSignal adjacent =
        read("[Curves pyro]\n0\t1\t1\n\xEF\xBB\xBF\t[Curves pyro]\n1\t1\t2\n[Curves pyro]");
    EXPECT_EQ(adjacent.curve.fid, (Values{1}));
    expectWarnings(adjacent.warnings, {"3 further section", "5 further section"});
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
                expectWarnings(signal.warnings, {std::to_string(i + 3) + " cut off"});
        }
    }
}

TEST(ReadSignal, what_is_no_signal_is_refused_in_one_sentence_with_its_line) {
    using namespace std::string_literals;
    struct Case {
        std::string text, line, part;
    };
    for (const Case& c : {Case{"", "1", "empty"}, Case{"\xEF\xBB\xBF", "1", "empty"},
                          Case{"\n\n0\t1\t2\n", "3", "without a section [Curves pyro]"},
                          Case{"[Curves oxi]\r\n0\t1\t2", "2", "without a section [Curves pyro]"},
                          Case{"[Curves pyrolysis]\n0\t1\t2", "2", "without a section [Curves pyro]"},
                          Case{"\r\n[Curves pyro]\r\n\r\nx\r\n[Curves oxi]\r\n0\t1\t2", "2", "no row"},
                          Case{"\xFF\xFE[\n", "1", "UTF-16"}, Case{"\xFE\xFF[\n", "1", "UTF-16"},
                          Case{"[Curves pyro]\n0\t1\t2\n\0\0"s, "3", "binary"}}) {
        expectRefusal([&] { return read(c.text); }, "core.S00, line " + c.line, c.part);
    }
}

TEST(ReadSignal, warnings_end_after_a_hundred_with_a_count) {
    std::string text = "[Curves pyro]\n0\t1\t1\n";
    for (int i = 0; i < 250; ++i)
        text += "x\ty\tz\n";
    const RawSignal signal = read(text);
    ASSERT_EQ(signal.warnings.size(), 101U);
    expectWarnings({signal.warnings[99], signal.warnings[100]}, {"102 row left out", "103 and 150 more"});
}

TEST(ReadSignal, hostile_input_takes_time_in_proportion_to_its_size) {
    const std::size_t size = std::size_t{1} << 22;
    const std::string head = "[Curves pyro]\n0\t1\t1\n";
    std::string brackets(size, '[');
    for (std::size_t i = 1; i < size; i += 2)
        brackets[i] = '\r';
    // Quadratic work on four million bytes would take hours; the bound leaves room for a sanitizer.
    const auto begin = std::chrono::steady_clock::now();
    for (const std::string& tail :
         {std::string(size, '\n'), std::string(size, '\r'), std::string(size, '\t'), std::string(size, ' '),
          std::string(size, '['), std::string(size, '1'), brackets, "[Curves oxi]\n" + brackets}) {
        EXPECT_NO_THROW(read(head + tail));
        EXPECT_THROW(read(tail), ReadError);
    }
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - begin;
    EXPECT_LT(taken.count(), 100.0);
}

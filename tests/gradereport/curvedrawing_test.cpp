#include "htmlcheck.h"
#include "samplerecord.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <limits>
#include <random>
#include <regex>
#include <sstream>

using namespace gradereport;

namespace {

struct Point {
    double x;
    double y;
};

using Line = std::vector<Point>;

std::string cardOf(const GradeRecord& record) {
    const std::string page = pageOf({record});
    checkedTags(page);
    return between(page, "<article", "</article>").at(0);
}

/// Follows path data of M, l, m and h as a browser does: a sign or a second point begins the next number.
std::vector<Line> linesOf(const std::string& card, const std::string& style) {
    const std::string data = between(card, "<path class=\"" + style + "\" d=\"", "\"").at(0);
    static const std::regex token("[A-Za-z]|-?([0-9]+([.][0-9]+)?|[.][0-9]+)");
    std::vector<Line> lines;
    Point at{0, 0};
    char command = 'M';
    for (std::sregex_iterator word(data.begin(), data.end(), token); word != std::sregex_iterator(); ++word) {
        if (std::isalpha(static_cast<unsigned char>(word->str()[0])) != 0) {
            command = word->str()[0];
            continue;
        }
        const double first = std::stod(word->str());
        const double second = command == 'h' ? 0.0 : std::stod((++word)->str());
        at = command == 'M' ? Point{first, second} : Point{at.x + first, at.y + second};
        if (command == 'M' || command == 'm')
            lines.emplace_back();
        lines.back().push_back(at);
    }
    return lines;
}

/// Where the marker of a peak at (x, y) of this record stands.
Point markerAt(GradeRecord record, double x, double y) {
    record.quality = 1;
    record.peaks = {{0, 0, 0, x, y, 1}};
    std::istringstream data(between(cardOf(record), "class=\"marker good\" d=\"M", "m").at(0));
    Point point{0, 0};
    data >> point.x >> point.y;
    return point;
}

GradeRecord recordOf(const Curve& raw) {
    GradeRecord record = sampleRecord();
    record.raw = raw;
    record.smoothed = {};
    record.peaks.clear();
    record.removed.clear();
    record.mean = 0;
    return record;
}

constexpr double infinity = std::numeric_limits<double>::infinity();

} // namespace

TEST(CurveDrawing, a_spike_and_a_dip_of_one_sample_in_a_hundred_thousand_survive) {
    Curve curve;
    for (int i = 0; i < 100000; ++i) {
        curve.x.push_back(i);
        curve.y.push_back(i == 61234 ? 5000 : (i == 20000 ? -900 : 100));
    }
    const GradeRecord record = recordOf(curve);
    const Line line = linesOf(cardOf(record), "raw").at(0);
    for (const Point wanted : {markerAt(record, 61234, 5000), markerAt(record, 20000, -900)}) {
        EXPECT_TRUE(std::any_of(line.begin(), line.end(), [wanted](Point point) {
            return std::abs(point.x - wanted.x) < 0.11 && std::abs(point.y - wanted.y) < 0.11;
        })) << wanted.x;
    }
}

TEST(CurveDrawing, every_sample_of_a_smooth_curve_lies_on_the_drawn_line) {
    Curve curve;
    for (int i = 0; i <= 500; ++i) {
        curve.x.push_back(i);
        curve.y.push_back(1000 * std::exp(-(i - 300.0) * (i - 300.0) / 5000));
    }
    const GradeRecord record = recordOf(curve);
    const Line line = linesOf(cardOf(record), "raw").at(0);
    EXPECT_LT(line.size(), 120U);
    const Point origin = markerAt(record, 0, 0);
    const Point far = markerAt(record, 500, 1000);
    std::size_t next = 1;
    for (std::size_t i = 0; i < curve.x.size(); ++i) {
        const double x = origin.x + curve.x[i] / 500 * (far.x - origin.x);
        const double y = origin.y + curve.y[i] / 1000 * (far.y - origin.y);
        while (next + 1 < line.size() && line[next].x < x)
            ++next;
        const Point a = line[next - 1];
        const double slope = (line[next].y - a.y) / (line[next].x - a.x);
        // A fifth of a unit for straightening, the rest for samples inside a column on the steepest flank.
        ASSERT_NEAR(a.y + (x - a.x) * slope, y, 0.6) << "sample " << i;
    }
}

TEST(CurveDrawing, the_text_is_bounded_for_noise_for_jumping_time_and_for_many_peaks) {
    std::mt19937 random(5);
    std::uniform_real_distribution<double> any(0, 1000);
    Curve noise;
    Curve jumping;
    for (int i = 0; i < 200000; ++i) {
        noise.x.push_back(i);
        jumping.x.push_back(any(random));
        noise.y.push_back(any(random));
    }
    jumping.y = noise.y;
    EXPECT_LT(cardOf(recordOf(noise)).size(), 9000U);
    EXPECT_LT(cardOf(recordOf(jumping)).size(), 9000U);
    GradeRecord record = sampleRecord();
    record.peaks.assign(1000, record.peaks[0]);
    record.removed.assign(1000, record.removed[0]);
    const std::string card = cardOf(record);
    EXPECT_LT(card.size(), 14000U);
    EXPECT_NE(card.find("not drawn: 976 lower peaks, 976 lower removed candidates"), std::string::npos);
}

TEST(CurveDrawing, a_sample_that_is_not_finite_interrupts_the_line) {
    const Curve curve{{0, 10, 20, 30, 40, 50, 60, 70},
                      {0, 10, std::nan(""), 30, 40, infinity, 60, -infinity}};
    const std::vector<Line> lines = linesOf(cardOf(recordOf(curve)), "raw");
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_EQ(lines[0].size() + lines[1].size(), 4U);
    EXPECT_NEAR(lines[3].back().x - lines[3].front().x, 3, 0.01) << "a lone sample is a dash";
    EXPECT_NEAR((lines[3].back().x + lines[3].front().x) / 2, lines[2].front().x, 0.11);
}

TEST(CurveDrawing, degenerate_and_extreme_curves_draw) {
    const double huge = std::numeric_limits<double>::max();
    const std::vector<Curve> curves{{{3}, {7}},
                                    {{0, 1, 2}, {5, 5, 5}},
                                    {{0, 1, 2}, {0, 0, 0}},
                                    {{4, 4, 4}, {1, 2, 3}},
                                    {{-huge, 0, huge}, {-huge, huge, 0}},
                                    {{0, 5e-324}, {0, 5e-324}},
                                    {{0, 1, 2}, {-3, -2, -1}},
                                    {{2, 1, 0}, {1, 2, 3}},
                                    {{0, 1, 2}, {1}}};
    for (const Curve& curve : curves) {
        const std::string card = cardOf(recordOf(curve));
        EXPECT_FALSE(linesOf(card, "raw").empty());
        for (const Line& line : linesOf(card, "raw")) {
            for (const Point& point : line) {
                EXPECT_TRUE(point.x >= 54 && point.x <= 594 && point.y >= 24 && point.y <= 200)
                    << point.x << ' ' << point.y;
            }
        }
        EXPECT_EQ(card.find("nan") & card.find("inf"), std::string::npos);
    }
    for (const Curve& curve : {Curve{}, Curve{{std::nan("")}, {1}}, Curve{{1, 2}, {}}})
        EXPECT_NE(cardOf(recordOf(curve)).find("no sample to draw"), std::string::npos);
}

TEST(CurveDrawing, left_out_ranges_lie_before_the_start_and_behind_the_graded_range) {
    const std::string card = cardOf(sampleRecord());
    const std::vector<std::string> shaded = between(card, "<path class=\"out\" d=\"", "\"");
    ASSERT_EQ(shaded.size(), 2U);
    // 101 samples from x = 56 to 592: 5.36 units a second; start at 10.5 s, graded until 90 s.
    EXPECT_EQ(shaded[0], "M56 24h56.3V200h-56.3z");
    EXPECT_EQ(shaded[1], "M538.4 24h53.6V200h-53.6z");
    GradeRecord whole = sampleRecord();
    whole.start = 0;
    whole.smoothed = whole.raw;
    EXPECT_TRUE(between(cardOf(whole), "class=\"out\"", "/>").empty());
}

TEST(CurveDrawing, a_threshold_far_above_the_curve_is_named_and_does_not_squash_it) {
    GradeRecord record = sampleRecord();
    record.mean = 45;
    EXPECT_NE(cardOf(record).find("class=\"threshold\""), std::string::npos);
    record.mean = 5000;
    const std::string card = cardOf(record);
    EXPECT_EQ(card.find("class=\"threshold\""), std::string::npos);
    EXPECT_NE(card.find("2 \u00d7 mean = 10000, outside the drawing"), std::string::npos);
    EXPECT_LT(markerAt(record, 100, 100).y, 60);
}

TEST(CurveDrawing, peaks_with_impossible_indices_or_places_do_no_harm) {
    GradeRecord record = sampleRecord();
    record.peaks = {{1U << 30U, 0, 1U << 31U, 1e12, -1e12, 1}, {0, 0, 0, std::nan(""), 1, 3}};
    record.removed = {{0, infinity, 1, RemovalCause::early, 0},
                      {0, 5, 5, RemovalCause::coelution, -infinity}};
    const std::string card = cardOf(record);
    EXPECT_EQ(between(card, "class=\"marker", "<title>").size(), 1U);
    EXPECT_NE(card.find("does not rise above its valleys"), std::string::npos);
}

#include "ExcelDate.h"
#include "ExcelFormat.h"

#include <gtest/gtest.h>

#include <limits>

using ExcelDate::Origin;
using ExcelFormat::Kind;

namespace {

std::string text(double serial, Kind kind, Origin origin = Origin::Year1900) {
    const QVariant value = ExcelDate::value(serial, origin, kind);
    return value.type() == QVariant::Double ? "number" : value.toString().toStdString();
}

} // namespace

TEST(ExcelDates, count_a_day_in_1900_that_was_not) {
    EXPECT_EQ(text(1, Kind::Date), "1900-01-01");
    EXPECT_EQ(text(59, Kind::Date), "1900-02-28");
    EXPECT_EQ(text(60, Kind::Date), "1900-02-29");
    EXPECT_EQ(text(61, Kind::Date), "1900-03-01");
    EXPECT_EQ(text(43953, Kind::Date, Origin::Year1904), "2024-05-03");
    EXPECT_EQ(text(0, Kind::Date, Origin::Year1904), "1904-01-01");
    EXPECT_EQ(text(2958465, Kind::Date), "9999-12-31");
    EXPECT_EQ(text(2957003, Kind::Date, Origin::Year1904), "9999-12-31");
}

TEST(ExcelDates, keep_the_time_and_round_it_to_milliseconds) {
    EXPECT_EQ(text(45415.604166666664, Kind::DateTime), "2024-05-03T14:30:00");
    EXPECT_EQ(text(45415.604166666664, Kind::Date), "2024-05-03T14:30:00")
        << "the time is hidden, not absent";
    EXPECT_EQ(text(45414.999999999993, Kind::Date), "2024-05-03") << "one step of a double below the day";
    EXPECT_EQ(text(0.604166666666667, Kind::Time), "14:30:00");
    EXPECT_EQ(text(0.5, Kind::DateTime), "12:00:00");
    EXPECT_EQ(text(0.5, Kind::DateTime, Origin::Year1904), "1904-01-01T12:00:00");
    EXPECT_EQ(text(0.00001, Kind::Time), "00:00:00.864");
    EXPECT_EQ(text(1.5, Kind::Time), "1900-01-01T12:00:00");
    EXPECT_EQ(text(1.5, Kind::Duration), "36:00:00");
    EXPECT_EQ(text(100, Kind::Duration), "2400:00:00");
}

TEST(ExcelDates, what_is_no_date_stays_a_number) {
    for (const double serial :
         {-1.0, 2958465.999999999, 2958466.0, 1e300, std::numeric_limits<double>::infinity(),
          std::numeric_limits<double>::quiet_NaN()}) {
        for (const Kind kind : {Kind::Date, Kind::Time, Kind::DateTime, Kind::Duration}) {
            EXPECT_EQ(text(serial, kind), "number") << serial;
        }
    }
    EXPECT_EQ(text(0, Kind::Date), "number") << "often a missing value";
    EXPECT_EQ(text(45415, Kind::Number), "number");
}

TEST(ExcelFormats, are_told_apart_by_number) {
    const Kind plain = Kind::Number;
    for (const int id : {-1, 0, 1, 13, 23, 37, 44, 48, 49, 164, 100000}) {
        EXPECT_EQ(ExcelFormat::kindOf(id), plain) << id;
    }
    const std::pair<int, Kind> others[] = {
        {14, Kind::Date}, {21, Kind::Time}, {22, Kind::DateTime}, {46, Kind::Duration}, {58, Kind::Date}};
    for (const auto& [id, kind] : others) {
        EXPECT_EQ(ExcelFormat::kindOf(id), kind) << id;
    }
}

TEST(ExcelFormats, are_told_apart_by_their_letters) {
    const auto expect = [](Kind kind, const QStringList& codes) {
        for (const QString& code : codes) {
            EXPECT_EQ(ExcelFormat::kindOf(code), kind) << qPrintable(code);
        }
    };
    expect(Kind::Number, {"", "General", "general\" day\"", "0.00", "#,##0 \"mm\"", "0.00\\m", "0.00 m",
                          "0.00E+00", "# ?/?", "[Red]0;[Blue]-0", "[$-409]0.0", "_-* #,##0_d", "@", "0;yyyy",
                          "\"unclosed yyyy", "[unclosed yyyy", "\\"});
    expect(Kind::Date,
           {"dd/mm/yyyy", "D.M.YY;@", "[$-40C]d mmmm yyyy;@", "mmm", "mm", "yyyy\"h\"", "ge.m.d"});
    expect(Kind::DateTime, {"yyyy-mm-dd hh:mm:ss", "d/m h AM/PM", "yyyy\\-mm\\-dd\\Thh:mm:ss.000"});
    expect(Kind::Time, {"h:mm A/P", "mm:ss.0", "hh\"h\"mm"});
    expect(Kind::Duration, {"[h]:mm", "[HH]:MM:SS.00", "[ss].00", "[mm]:ss"});
}

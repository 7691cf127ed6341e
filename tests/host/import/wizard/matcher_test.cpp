#include "SheetBuilder.h"

#include "ColumnHeader.h"
#include "IdentifierCheck.h"

namespace {

ColumnHeader header(const QStringList& levels, const QString& unit = {}) {
    ColumnHeader made;
    made.levels = levels;
    made.unit = unit;
    return made;
}

// The label of what is found; "≠" and the label where only the unit is another.
QString found(const ColumnHeader& header) {
    static const ColumnMatcher matcher(someProperties());
    const auto match = matcher.match(header);
    if (match.otherUnit >= 0) {
        return "≠" + matcher.properties()[match.otherUnit].label;
    }
    return match.property < 0 ? QString() : matcher.properties()[match.property].label;
}

QString found(const QString& name, const QString& unit = {}) {
    return found(header({name}, unit));
}

void expect(const QString& label, const QString& names) {
    for (const QString& name : names.split('|')) {
        EXPECT_EQ(found(name), label) << qPrintable(name);
    }
}

} // namespace

TEST(ColumnMatcher, finds_names_in_any_spelling_and_language_and_leaves_others_alone) {
    expect("TOC", "TOC|toc|C.O.T.|Total Organic Carbon|CARBONE  organique-total|TOC (%)|TOC [wt. %]|TOC, wt%|"
                  "TOC_%|Toc % pds");
    expect("δ13C C1", "δ13C-C1|d13C1|d13C CH4|δ¹³C₁ (‰)|Delta 13C methane|δ13C du méthane|CH4 d13C|"
                      "∂13C C1 [‰ vs V-PDB]|Isotopes du carbone du methane");
    expect("δD C1", "dD C1|δ2H CH4");
    expect("C1", "CH₄");
    expect("C6+", "C6+");
    expect("Tmax", "Tmax [ºC]");
    expect("S1", "S1 (mg HC/g Rock)");
    expect("", "|(%)|C6|C1/C2|1|TOC residual|S2|d13C|δ13C C2|Sample");
    EXPECT_EQ(found("Methane", "mol %"), "C1");
    EXPECT_EQ(found("T max", "degC"), "Tmax");
    EXPECT_EQ(found(QString(30000, '(')), "");
    EXPECT_EQ(found(QString(30000, ' ') + "TOC"), "");
}

TEST(ColumnMatcher, tells_a_property_in_another_unit_apart) {
    expect("≠TOC", "TOC (g/kg)");
    expect("≠C1", "C1 (‰)");
    expect("≠Tmax", "Tmax, °F");
    EXPECT_EQ(found("TOC", "‰"), "≠TOC");
    EXPECT_EQ(found("TOC (%)", "g/kg"), "≠TOC") << "the units row holds where both tell";
    EXPECT_EQ(found("TOC", "-"), "TOC");
}

TEST(ColumnMatcher, reads_groups_of_headers) {
    EXPECT_EQ(found(header({"Molecular composition", "C1"}, "%")), "C1");
    EXPECT_EQ(found(header({"δ13C (‰)", "C1"})), "δ13C C1");
    EXPECT_EQ(found(header({"Isotopes", "δ13C-C1"})), "δ13C C1");
    EXPECT_EQ(found(header({"Isotopes", "C1"})), "") << "the share of methane is no isotope ratio";
}

TEST(IdentifierCheck, stores_numbers_without_their_fractions) {
    for (const QString pair :
         {"3.9=3", "-3.9=-3", "007=7", "1e3=1000", "3,9=3,9", "=", "2147483520=2147483520",
          "2147483648=2147483648", "20240503001=20240503001", "-1e30=-1e30", "nan=nan", "inf=inf"}) {
        EXPECT_EQ(IdentifierCheck::stored(pair.section('=', 0, 0)), pair.section('=', 1)) << qPrintable(pair);
    }
}

TEST(IdentifierCheck, finds_empty_and_colliding_identifiers) {
    const auto sheet =
        sheetOf({{3.2}, {"A"}, {" "}, {3.9}, {"a"}, {"A "}, {"3"}, {}, {16777216}, {16777217}});
    const IdentifierCheck check(sheet, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9}, 0);
    EXPECT_EQ(check.emptyRows(), QVector<int>({2, 7}));
    ASSERT_EQ(check.collisions().size(), 3U);
    EXPECT_EQ(check.collisions()[0].identifier, "3");
    EXPECT_EQ(check.collisions()[0].rows, QVector<int>({0, 3, 6}));
    EXPECT_EQ(check.collisions()[1].rows, QVector<int>({1, 5}));
    EXPECT_EQ(check.collisions()[2].rows, QVector<int>({8, 9})) << "a float has no 16777217";
}

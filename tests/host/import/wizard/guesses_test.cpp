#include "ColumnContent.h"
#include "ColumnHeader.h"
#include "IdentifierCheck.h"
#include "IdentifierGuess.h"
#include "LayoutGuess.h"
#include "MappedTable.h"
#include "ModelSheet.h"
#include "NumberText.h"
#include "SheetBuilder.h"

#include <climits>

namespace {

QString layoutOf(const Workbook::Sheet& sheet) {
    const TableLayout layout = LayoutGuess::of(sheet);
    return QString("%1+%2 %3 %4")
        .arg(layout.headerRow)
        .arg(layout.headerRows)
        .arg(layout.unitsRow)
        .arg(layout.firstDataRow);
}

QStringList headersOf(const Workbook::Sheet& sheet, const TableLayout& layout) {
    QStringList names;
    for (const ColumnHeader& header : ColumnHeader::read(sheet, layout)) {
        names += header.name();
    }
    return names;
}

std::vector<bool> commasOf(const Workbook::Sheet& sheet) {
    return ColumnContent::decimalCommas(ColumnContent::read(sheet, MappedTable::rows(sheet, {})));
}

int identifierAmong(const QString& names) {
    std::vector<ColumnHeader> headers;
    for (const QString& name : names.split('|', Qt::SkipEmptyParts)) {
        headers.emplace_back().levels = QStringList(name);
    }
    return IdentifierGuess::of(headers);
}

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

TEST(NumberText, reads_numbers_under_one_decimal_mark_and_leaves_other_texts_alone) {
    const QString commas = "12,5=12.5| -0,5 =-0.5|,5=0.5|1 234,5=1234.5|1.234,5=1234.5|1,5E-3=0.0015|"
                           "\u22123,25=-3.25|1\u202F234\u202F567=1234567|12=12|1.234.567=1234567";
    for (const QString& pair : commas.split('|')) {
        EXPECT_EQ(NumberText::value(pair.section('=', 0, 0), true), pair.section('=', 1).toDouble())
            << qPrintable(pair);
    }
    EXPECT_EQ(NumberText::value("1,234.5", false), 1234.5);
    const QString none = "| |<1|<0,1|n.d.|12,5 %|0x1F|nan|inf|1e999|-|,|e5|007|12,|1,2,3|12.5|1.234|1 23|"
                         "12345678901234567|1,5e|--1";
    for (const QString& text : none.split('|')) {
        EXPECT_FALSE(NumberText::value(text, true).has_value()) << qPrintable(text);
    }
    EXPECT_FALSE(NumberText::value(QString(100000, '1'), true).has_value());
}

TEST(DecimalComma, is_found_by_column_and_where_it_is_open_by_the_other_columns) {
    EXPECT_EQ(commasOf(sheetOf({{"12,5", "12.5", "1,234", "word"}, {"n.d.", "3.1", "5,678", 2}})),
              (std::vector<bool>{true, false, true, false}));
    EXPECT_EQ(commasOf(sheetOf({{"1,234", "12.5"}, {"5,678", "1.5"}})), (std::vector<bool>{false, false}))
        << "where points are decimal, commas may separate thousands";
    EXPECT_EQ(commasOf(sheetOf({{"1,234"}})), (std::vector<bool>{true}));
    EXPECT_EQ(commasOf(sheetOf({{"0,123"}, {"0.5"}, {"0,7"}})), (std::vector<bool>{true}));
}

TEST(LayoutGuess, finds_header_units_and_samples) {
    EXPECT_EQ(layoutOf(sheetOf({{"Sample", "TOC"}, {"A", 1}})), "0+1 -1 1");
    EXPECT_EQ(layoutOf(sheetOf({{"Laboratory"},
                                {"Client", "Total"},
                                {},
                                {"Sample", "Depth", "TOC", "Tmax"},
                                {"", "m", "%", "°C"},
                                {"A", 1, 2, 3}})),
              "3+1 4 5");
    EXPECT_EQ(layoutOf(sheetOf({{"Nom", "Formation", "Faciès"}, {"A", "Toarcien", "argile"}})), "0+1 -1 1")
        << "words below a header are no units";
    EXPECT_EQ(layoutOf(sheetOf({{"A", 1.5, "2,5"}, {"B", 2, 3}})), "-1+1 -1 0") << "no header";
    EXPECT_EQ(layoutOf(sheetOf({})), "-1+1 -1 0");
    EXPECT_EQ(layoutOf(sheetOf({{"Sample", "TOC"}})), "0+1 -1 1") << "a header alone";
}

TEST(LayoutGuess, joins_merged_headers_downward) {
    Workbook::Sheet sheet = sheetOf({{"Report"},
                                     {"Sample", "Isotopes", "", "TOC"},
                                     {"", "δ13C", "δD", ""},
                                     {"", "‰", "(‰)", "[%]"},
                                     {"A", -45, -180, 2}});
    sheet.merged = {{0, 0, 0, 3}, {1, 0, 3, 0}, {1, 1, 1, 2}, {1, 3, 2, 3}};
    const TableLayout layout = LayoutGuess::of(sheet);
    EXPECT_EQ(layoutOf(sheet), "1+2 3 4") << "a title merged over all columns is no header";
    EXPECT_EQ(headersOf(sheet, layout),
              QStringList({"Sample", "Isotopes – δ13C (‰)", "Isotopes – δD (‰)", "TOC (%)"}));
    EXPECT_EQ(headersOf(sheet, {}), QStringList({"Column A", "Column B", "Column C", "Column D"}));
}

TEST(LayoutGuess, survives_merged_ranges_made_to_harm) {
    Workbook::Sheet sheet = sheetOf({{"Sample", "Group", ""}, {"", "x", "y"}, {"A", 1, 2}});
    sheet.merged = {
        {0, 1, 0, 2}, {INT_MIN, INT_MIN, INT_MAX, INT_MAX}, {2, 2, 0, 0}, {-5, -5, -1, -1}, {100, 0, 200, 0}};
    for (int i = 0; i < 100000; ++i) {
        sheet.merged.append({0, 0, INT_MAX, INT_MAX});
    }
    const TableLayout layout = LayoutGuess::of(sheet);
    EXPECT_GE(layout.firstDataRow, 1);
    EXPECT_EQ(ColumnHeader::read(sheet, layout).size(), 3U);
}

TEST(IdentifierGuess, knows_the_usual_headers_in_both_languages) {
    for (const char* const names : {"TOC|Nom de l'échantillon", "TOC|SAMPLE_NO", "Depth|Nom|Puits",
                                    "TOC|Well name|Depth", "Puits|N° échantillon|Nom"}) {
        EXPECT_EQ(identifierAmong(names), 1) << names;
    }
    EXPECT_EQ(identifierAmong("Well|Name|Sample ID"), 2);
    EXPECT_EQ(identifierAmong("Depth|Sample depth|Nd"), 0) << "neither names a sample";
    EXPECT_EQ(identifierAmong(""), -1);
    EXPECT_EQ(identifierAmong(QString(30000, 'n') + "|ID"), 1);
}

TEST(ModelSheet, takes_named_columns_as_the_first_row) {
    VKDataModelGeneric table;
    table.createEmpty(3, 2);
    table.setHeaderData(0, Qt::Horizontal, "Sample");
    table.setData(table.index(0, 0), 7);
    table.setData(table.index(0, 1), true);
    const Workbook::Sheet sheet = ModelSheet::read(table);
    ASSERT_EQ(sheet.rowCount(), 2);
    EXPECT_EQ(sheet.cell(0, 0), "Sample");
    EXPECT_EQ(sheet.cell(1, 0), 7.0);
    EXPECT_EQ(sheet.cell(1, 0).userType(), int(QMetaType::Double));
    EXPECT_EQ(sheet.cell(1, 1), "TRUE");
}

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

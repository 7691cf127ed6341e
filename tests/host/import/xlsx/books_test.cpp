#include "ExpectedBook.h"
#include "PackedWorkbook.h"
#include "XlsxReader.h"

namespace {

Workbook::Book read(const PackedWorkbook& packed, const Workbook::Limits& limits = {}) {
    return XlsxReader::read(packed.bytes(), "made.xlsx", limits);
}

/// The rows of the only sheet, as JSON without the brackets around all.
std::string rows(const QByteArray& xml) {
    const Workbook::Book book = read(PackedWorkbook(xml));
    EXPECT_EQ(book.sheets.size(), 1U);
    const QJsonArray rows = ExpectedBook::toJson(book).at(0).toObject().value("rows").toArray();
    return QJsonDocument(rows).toJson(QJsonDocument::Compact).toStdString();
}

std::string cells(const QByteArray& xml) {
    return rows("<row>" + xml + "</row>");
}

} // namespace

TEST(XlsxReader, warns_of_what_it_leaves_out) {
    const auto warnings = [](const QString& name) {
        return XlsxReader::read(bytesOf(QStringLiteral(IMPORT_TEST_DATA "/") + name), name)
            .warnings.join('\n');
    };
    EXPECT_EQ(warnings("tables.xlsx"), "Sheet <b>Chart</b> holds no table and was left out.");
    EXPECT_TRUE(
        warnings("dates-1904.xlsx").startsWith("In sheet <b>Sheet</b>, 3 formulas have no stored result"));
    EXPECT_TRUE(warnings("dates-1904.xlsx").contains("first B1;"));
    EXPECT_EQ(warnings("results-shared.xlsx"), "");

    Workbook::Limits limits;
    limits.textLength = 3;
    PackedWorkbook packed(
        "<row><c t=\"s\"><v>0</v></c><c t=\"str\"><v>abc</v></c><c><v>1e99999</v></c></row>");
    const Workbook::Book book = read(packed, limits);
    EXPECT_EQ(book.sheets[0].cell(0, 0), "sha");
    EXPECT_EQ(book.sheets[0].cell(0, 1), "abc");
    EXPECT_EQ(book.warnings.join('\n'), "2 texts were cut after 3 characters.");
}

TEST(XlsxReader, takes_texts_as_they_were_typed) {
    const auto inlineText = [](const QByteArray& text) {
        return cells("<c t=\"inlineStr\"><is><t>" + text + "</t></is></c>");
    };
    EXPECT_EQ(inlineText("a_x000D_b_x0009_"), R"([["a\rb\t"]])");
    EXPECT_EQ(inlineText("_x005F_x000D_"), R"([["_x000D_"]])");
    EXPECT_EQ(inlineText("_x00e9_ _x12_ _xZZZZ_ _x+041_ __x0041_ _x0041"),
              R"([["é _x12_ _xZZZZ_ _x+041_ _A _x0041"]])");
    EXPECT_EQ(inlineText("_x0000_"), R"([["_x0000_"]])") << "a zero would end the text elsewhere";
    EXPECT_EQ(inlineText("a<!-- c -->b<![CDATA[<c>]]>&#x1D11E;"), R"([["ab<c>𝄞"]])");
    EXPECT_EQ(inlineText(""), R"([[""]])") << "the file says that it is a text";
    EXPECT_EQ(cells("<c t=\"str\"><v> _x0041_ </v></c>"), R"([[" A "]])");
    EXPECT_EQ(cells("<c t=\"str\"><f>A1</f><v></v></c>"), R"([[""]])");
    EXPECT_FALSE(read(PackedWorkbook("<row><c t=\"inlineStr\"><is/></c></row>"))
                     .sheets[0]
                     .cell(0, 0)
                     .toString()
                     .isNull());
}

TEST(XlsxReader, takes_numbers_in_the_language_of_the_file_alone) {
    EXPECT_EQ(cells("<c><v>1.5</v></c><c t=\"n\"><v> 2E-3 </v></c><c s=\"99\"><v>45415</v></c>"),
              "[[1.5,0.002,45415]]");
    EXPECT_EQ(cells("<c s=\"1\"><v>45415</v></c>"), R"([["2024-05-03"]])");
    EXPECT_EQ(
        cells("<c><v>1,5</v></c><c><v>1e999</v></c><c><v>NaN</v></c><c><v>-inf</v></c><c><v>0x1F</v></c>"),
        R"([["1,5","1e999","NaN","-inf","0x1F"]])");
    EXPECT_EQ(cells("<c t=\"b\"><v>true</v></c><c t=\"b\"><v>false</v></c><c t=\"e\"><v>#N/A</v></c>"),
              R"([["TRUE","FALSE","#N/A"]])");
    EXPECT_EQ(cells("<c t=\"d\" s=\"1\"><v>2024-05-03T00:00:00.000Z</v></c><c "
                    "t=\"d\"><v>2024-05-03T00:00:00</v></c>"),
              R"([["2024-05-03","2024-05-03T00:00:00"]])");
}

TEST(XlsxReader, puts_cells_where_they_say_and_else_behind_the_one_before) {
    EXPECT_EQ(rows("<row r=\"3\"><c r=\"C3\"><v>1</v></c><c><v>2</v></c></row><row><c><v>3</v></c></row>"),
              "[[],[],[null,null,1,2],[3]]");
    EXPECT_EQ(rows("<row r=\"2\"><c r=\"B2\"><v>1</v></c><c r=\"A2\"><v>2</v></c></row><row "
                   "r=\"1\"><c><v>3</v></c></row>"),
              "[[3],[2,1]]")
        << "the order of the file does not matter";
    EXPECT_EQ(cells("<c><v>1</v></c><c s=\"1\"/><c/><c><v></v></c>"), "[[1]]")
        << "a row ends where it is filled";
    EXPECT_EQ(rows("<row><c><v>1</v></c></row><row r=\"900000\"/>"), "[[1]]");
    EXPECT_EQ(rows("<row r=\"1048576\"/><row r=\"1\"><c r=\"xfd1\"/></row>"), "[]");
    EXPECT_EQ(rows("</sheetData><extLst><ext><sheetData><row><c><v>6</v></c></row></sheetData></ext></"
                   "extLst><sheetData>"),
              "[]")
        << "what an extension keeps for itself is no cell";
}

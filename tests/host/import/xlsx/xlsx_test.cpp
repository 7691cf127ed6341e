#include "ExpectedBook.h"
#include "PackedWorkbook.h"
#include "XlsxReader.h"

#include <QElapsedTimer>

namespace {

using Rows = PackedWorkbook;

Workbook::Book read(const PackedWorkbook& packed, const Workbook::Limits& limits = {}) {
    return XlsxReader::read(packed.bytes(), "made.xlsx", limits);
}

/// The rows of the only sheet as JSON, without the brackets around all.
std::string rows(const QByteArray& xml) {
    const Workbook::Book book = read(PackedWorkbook(xml));
    EXPECT_EQ(book.sheets.size(), 1U);
    const QJsonArray rows = ExpectedBook::toJson(book).at(0).toObject().value("rows").toArray();
    return QJsonDocument(rows).toJson(QJsonDocument::Compact).toStdString();
}

std::string cells(const QByteArray& xml) {
    return rows("<row>" + xml + "</row>");
}

const QByteArray sheet = "xl/worksheets/sheet1.xml";
const QByteArray oneMore = "<sheet name=\"x\" r:id=\"worksheet\"/>";

/// Why the bytes are refused; empty if they aren't.
std::string refusal(const QByteArray& bytes, const Workbook::Limits& limits = {}) {
    try {
        EXPECT_FALSE(XlsxReader::read(bytes, "a<b>.xlsx", limits).sheets.empty());
    } catch (const VKError& error) {
        EXPECT_TRUE(error.message().startsWith("The workbook <b>a&lt;b&gt;.xlsx</b> can't be read: "));
        EXPECT_FALSE(error.advice().isEmpty());
        return error.text().toStdString();
    }
    return {};
}

void expect(const char* cause, const QByteArray& bytes, const Workbook::Limits& limits = {}) {
    EXPECT_PRED_FORMAT2(testing::IsSubstring, cause, refusal(bytes, limits));
}

void expect(const char* cause, const PackedWorkbook& packed, const Workbook::Limits& limits = {}) {
    expect(cause, packed.bytes(), limits);
}

PackedWorkbook part(const QByteArray& name, const QByteArray& content) {
    PackedWorkbook packed;
    packed.parts[name] = content;
    return packed;
}

PackedWorkbook without(const QByteArray& name) {
    PackedWorkbook packed;
    packed.parts.remove(name);
    return packed;
}

PackedWorkbook withSheets(int count, PackedWorkbook packed = {}) {
    packed.parts["xl/workbook.xml"].replace("<sheets>", "<sheets>" + oneMore.repeated(count - 1));
    return packed;
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
    EXPECT_EQ(cells("<c t=\"inlineStr\"><is/></c>"), R"([[""]])");
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

TEST(XlsxReader, refuses_what_is_no_workbook_by_what_it_is) {
    PackedWorkbook packed = without("_rels/.rels");
    expect("zip archive without a workbook", packed);
    packed.parts["META-INF/manifest.xml"] = "<manifest/>";
    expect("OpenDocument", packed);
    packed = PackedWorkbook();
    packed.parts["_rels/.rels"].replace("workbook.xml", "workbook.bin");
    expect(".xlsb", packed);
    expect("without a workbook", part("xl/workbook.xml", "<document/>"));
    expect("no sheet", part("xl/workbook.xml", "<workbook/>"));
    expect("no worksheet", part(sheet, "<chartsheet/>"));
    expect("(Part <b>xl/worksheets/sheet1.xml</b>: it is missing)", without(sheet));
    packed = PackedWorkbook();
    packed.password = "secret";
    expect("encrypted", packed);
}

TEST(XlsxReader, refuses_content_that_makes_no_sense_with_part_and_line) {
    expect("(Part <b>xl/worksheets/sheet1.xml</b>, line 3: ", Rows("\n\n<row></wrong>"));
    expect("(Part <b>xl/sharedStrings.xml</b>", part("xl/sharedStrings.xml", "<sst><si><t>a"));
    expect("(Part <b>xl/styles.xml</b>, line 1", part("xl/styles.xml", ""));
    expect("no shared text 1", Rows("<row><c t=\"s\"><v>1</v></c></row>"));
    expect("no shared text -1", Rows("<row><c t=\"s\"><v>-1</v></c></row>"));
    for (const char* const place : {"A", "1", "A0", "A1048577", "XFE1", "AAAAAAAAAA1",
                                    "A99999999999999999999", "A1B", "$A$1", "é1", "A-1", "A 1"}) {
        expect("no place in a sheet", Rows(QByteArray("<row><c r=\"") + place + "\"><v>1</v></c></row>"));
    }
    for (const char* const number : {"0", "-1", "1048577", "x", "99999999999", "1048576\"/><row x=\""}) {
        expect("no place in a sheet", Rows(QByteArray("<row r=\"") + number + "\"/>"));
    }
    expect("no place in a sheet", Rows("<row><c r=\"XFD1\"/><c/></row>"));
    for (const char* const range : {"", "A1:", ":B2", "B2:A1", "A1:B2:C3"}) {
        const QByteArray merged = QByteArray("<mergeCell ref=\"") + range + "\"/>";
        expect("no place in a sheet",
               part(sheet, "<worksheet><mergeCells>" + merged + "</mergeCells></worksheet>"));
    }
}

TEST(XlsxReader, survives_a_file_cut_off_or_damaged_anywhere) {
    const QByteArray whole = bytesOf(IMPORT_TEST_DATA "/by-hand.xlsx");
    int refused = 0;
    for (int at = 0; at < whole.size(); ++at) {
        EXPECT_FALSE(refusal(whole.left(at)).empty()) << at;
        QByteArray damaged = whole;
        damaged[at] = static_cast<char>(damaged[at] ^ (1 << at % 8));
        refused += refusal(damaged).empty() ? 0 : 1;
    }
    EXPECT_GT(refused, whole.size() / 2) << "most of the file is covered by sums";
}

// The parser is content once the root has ended, which may come before the sum is looked at.
TEST(XlsxReader, refuses_each_part_whose_sum_is_wrong) {
    PackedWorkbook packed("<row><c t=\"s\"><v>0</v></c></row>");
    packed.compressed = false;
    const QByteArray bytes = packed.bytes();
    for (const char* const text : {"Sheet\" r:id", "shared</t>", "14\"/>", "0</v>", "sheet1.xml\"/>"}) {
        QByteArray damaged = bytes;
        const int at = damaged.indexOf(text);
        ASSERT_GT(at, 0) << text;
        damaged[at] = static_cast<char>(damaged[at] ^ 1);
        expect("is damaged", damaged);
    }
}

TEST(XlsxReader, refuses_xml_made_to_exhaust) {
    QElapsedTimer timer;
    timer.start();
    const QByteArray entities = "<!DOCTYPE sst [<!ENTITY a \"aaaaaaaaaa\"><!ENTITY b \"&a;&a;&a;&a;\">]>";
    expect("document type", part("xl/sharedStrings.xml", entities + "<sst><si><t>&b;</t></si></sst>"));
    const QByteArray nested = QByteArray("<a>").repeated(1'000'000);
    expect("nested too deep", Rows("<row>" + nested));
    expect("nested too deep", part("xl/styles.xml", nested));
    expect("too long", Rows("<row x=\"" + QByteArray(2'000'000, 'x') + "\"/>"));
    expect("too long", Rows("<!--" + QByteArray(2'000'000, 'x') + "-->"));
    const QByteArray pieces = (QByteArray(100'000, 'x') + "<!---->").repeated(10);
    expect("too long", Rows("<row><c><v>" + pieces + "</v></c></row>"));
    QByteArray attributes;
    for (int i = 0; i < 20'000; ++i) {
        attributes += " a" + QByteArray::number(i) + "=\"n\"";
    }
    expect("too many attributes", Rows("<row" + attributes + "/>"));
    expect("too many attributes", Rows("<row" + attributes.replace(" a", " xmlns:a") + "/>"));
    EXPECT_LT(timer.elapsed(), 20'000);
}

TEST(XlsxReader, refuses_more_than_the_limits_allow) {
    Workbook::Limits limits;
    limits.cells = 3;
    const QByteArray cell = "<c><v>1</v></c>";
    EXPECT_EQ(refusal(Rows("<row>" + cell.repeated(3) + "</row>").bytes(), limits), "");
    expect("more than 3 cells", Rows("<row>" + cell.repeated(4) + "</row>"), limits);
    limits = {};
    limits.sheets = 2;
    expect("more than 2 sheets", withSheets(3), limits);
    limits = {};
    limits.fileBytes = 100;
    expect("is larger than", PackedWorkbook(), limits);
    limits = {};
    limits.unpackedBytes = 3000; // each sheet reads the same part again
    expect("unpacks to more than",
           withSheets(3, part(sheet, "<worksheet>" + QByteArray(1200, ' ') + "</worksheet>")), limits);
}

// Half a megabyte that asks for hundreds of gigabytes.
TEST(XlsxReader, refuses_cells_so_far_apart_that_the_table_would_not_fit) {
    QByteArray far;
    for (int row = 1; row <= 20'000; ++row) {
        const QByteArray number = QByteArray::number(row * 50);
        far += "<row r=\"" + number + "\"><c r=\"XFD" + number + "\"><v>1</v></c></row>";
    }
    expect("too far apart", PackedWorkbook(far));
    const PackedWorkbook last = Rows("<row r=\"1048576\"><c><v>1</v></c></row>");
    EXPECT_EQ(refusal(last.bytes()), "") << "one such cell is no attack";
    expect("too far apart", withSheets(900, last));
}

TEST(XlsxReader, refuses_parts_that_unpack_beyond_belief) {
    constexpr quint32 blanks = 32 * 1024 * 1024;
    const QByteArray bytes = part(sheet, QByteArray(blanks, ' ')).bytes();
    expect("far more than a workbook would", bytes);

    QByteArray lying = bytes; // in both places that tell the size
    const QByteArray told(reinterpret_cast<const char*>(&blanks), sizeof blanks);
    ASSERT_GE(lying.count(told), 1);
    expect("damaged", lying.replace(told, QByteArray("\0\1\0\0", 4)));
}

// libzip reads the list of files again for each of the ends.
TEST(XlsxReader, refuses_archives_whose_lists_of_files_take_minutes_to_read) {
    PackedWorkbook packed = part("media", QByteArray(3 * 1024 * 1024, '\0'));
    packed.compressed = false;
    for (int number = 0; number < 5'000; ++number) {
        packed.parts["x" + QByteArray::number(number)] = "";
    }
    const QByteArray bytes = packed.bytes();
    EXPECT_EQ(refusal(bytes), "") << "the list alone is within the limit";
    const QByteArray end = bytes.right(22);
    ASSERT_TRUE(end.startsWith("PK\x05\x06"));
    expect("more files than a workbook would", bytes + end.repeated(1000));

    // The large form of the end, as a locator of it and the record that it locates
    const QByteArray large =
        QByteArray("PK\x06\x06").leftJustified(40, '\0') + QByteArray(8, '\x7F') + QByteArray(8, '\0');
    const auto place = static_cast<quint64>(bytes.size());
    const QByteArray located(reinterpret_cast<const char*>(&place), sizeof place);
    const QByteArray locator = QByteArray("PK\x06\x07").leftJustified(8, '\0');
    expect("more files than a workbook would", bytes + large + locator + located + QByteArray(4, '\0') + end);
    refusal(bytes + large + locator + QByteArray(12, '\x7F') + end); // outside of the file
}

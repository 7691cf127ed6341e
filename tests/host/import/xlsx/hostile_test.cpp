#include "ExpectedBook.h"
#include "PackedWorkbook.h"
#include "VKError.h"
#include "XlsxReader.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>

namespace {

/// Why the bytes are refused; empty if they aren't.
std::string refusal(const QByteArray& bytes, const Workbook::Limits& limits = {}) {
    try {
        const Workbook::Book book = XlsxReader::read(bytes, "a<b>.xlsx", limits);
        EXPECT_FALSE(book.sheets.empty());
    } catch (const VKError& error) {
        EXPECT_TRUE(error.message().startsWith("The workbook <b>a&lt;b&gt;.xlsx</b> can't be read: "));
        EXPECT_FALSE(error.advice().isEmpty());
        return error.text().toStdString();
    }
    return {};
}

std::string refusal(const PackedWorkbook& packed, const Workbook::Limits& limits = {}) {
    return refusal(packed.bytes(), limits);
}

std::string refusalOfPart(const QByteArray& name, const QByteArray& content) {
    PackedWorkbook packed;
    packed.parts[name] = content;
    return refusal(packed);
}

std::string refusalOfRows(const QByteArray& rows, const Workbook::Limits& limits = {}) {
    return refusal(PackedWorkbook(rows), limits);
}

bool says(const std::string& text, const char* part) {
    if (text.find(part) != std::string::npos) {
        return true;
    }
    std::printf("says: %s\n", text.c_str());
    return false;
}

QByteArray sample() {
    return ExpectedBook::content(IMPORT_TEST_DATA "/by-hand.xlsx");
}

} // namespace

TEST(XlsxReader, refuses_what_is_no_workbook_by_what_it_is) {
    PackedWorkbook packed;
    packed.parts.remove("_rels/.rels");
    EXPECT_TRUE(says(refusal(packed), "zip archive without a workbook"));
    packed.parts["META-INF/manifest.xml"] = "<manifest/>";
    EXPECT_TRUE(says(refusal(packed), "OpenDocument"));
    EXPECT_TRUE(
        says(refusalOfPart("_rels/.rels", "<Relationships><Relationship Id=\"1\" Type=\"x/officeDocument\" "
                                          "Target=\"xl/workbook.bin\"/></Relationships>"),
             ".xlsb"));
    EXPECT_TRUE(says(refusalOfPart("xl/workbook.xml", "<document/>"), "without a workbook"));
    EXPECT_TRUE(says(refusalOfPart("xl/workbook.xml", "<workbook/>"), "no sheet"));
    EXPECT_TRUE(says(refusalOfPart("xl/worksheets/sheet1.xml", "<chartsheet/>"), "no worksheet"));
    packed = PackedWorkbook();
    packed.parts.remove("xl/worksheets/sheet1.xml");
    EXPECT_TRUE(says(refusal(packed), "(Part <b>xl/worksheets/sheet1.xml</b>: it is missing)"));
    packed = PackedWorkbook();
    packed.password = "secret";
    EXPECT_TRUE(says(refusal(packed), "encrypted"));
}

TEST(XlsxReader, refuses_content_that_makes_no_sense_with_part_and_line) {
    EXPECT_TRUE(says(refusalOfRows("\n\n<row></wrong>"), "(Part <b>xl/worksheets/sheet1.xml</b>, line 3: "));
    EXPECT_TRUE(
        says(refusalOfPart("xl/sharedStrings.xml", "<sst><si><t>a"), "(Part <b>xl/sharedStrings.xml</b>"));
    EXPECT_TRUE(says(refusalOfPart("xl/styles.xml", ""), "(Part <b>xl/styles.xml</b>, line 1"));
    EXPECT_TRUE(says(refusalOfRows("<row><c t=\"s\"><v>1</v></c></row>"), "no shared text 1"));
    EXPECT_TRUE(says(refusalOfRows("<row><c t=\"s\"><v>-1</v></c></row>"), "no shared text -1"));
    for (const char* const place :
         {"A", "1", "A0", "A1048577", "XFE1", "AAAAAAAAAA1", "A99999999999999999999", "A1B", "$A$1", "é1"}) {
        const QByteArray row = QByteArray("<row><c r=\"") + place + "\"><v>1</v></c></row>";
        EXPECT_TRUE(says(refusalOfRows(row), "no place in a sheet")) << place;
    }
    for (const char* const number : {"0", "-1", "1048577", "x", "99999999999"}) {
        EXPECT_TRUE(says(refusalOfRows(QByteArray("<row r=\"") + number + "\"/>"), "no place in a sheet"))
            << number;
    }
    EXPECT_TRUE(says(refusalOfRows("<row r=\"1048576\"/><row/>"), "no place in a sheet"));
    EXPECT_TRUE(says(refusalOfRows("<row><c r=\"XFD1\"/><c/></row>"), "no place in a sheet"));
    for (const char* const range : {"", "A1:", ":B2", "B2:A1", "A1:B2:C3"}) {
        EXPECT_TRUE(says(
            refusalOfPart("xl/worksheets/sheet1.xml", QByteArray("<worksheet><mergeCells><mergeCell ref=\"") +
                                                          range + "\"/></mergeCells></worksheet>"),
            "no place in a sheet"))
            << range;
    }
}

TEST(XlsxReader, survives_a_file_cut_off_anywhere) {
    const QByteArray whole = sample();
    for (int length = 0; length < whole.size(); length += 7) {
        EXPECT_FALSE(refusal(whole.left(length)).empty()) << length;
    }
}

TEST(XlsxReader, survives_damage_to_any_byte) {
    const QByteArray whole = sample();
    int refused = 0;
    for (int at = 0; at < whole.size(); ++at) {
        QByteArray damaged = whole;
        damaged[at] = static_cast<char>(damaged[at] ^ (1 << at % 8));
        refused += refusal(damaged).empty() ? 0 : 1;
    }
    EXPECT_GT(refused, whole.size() / 2) << "most of the file is covered by sums";
}

TEST(XlsxReader, survives_damage_within_the_parts) {
    const PackedWorkbook whole(
        "<row r=\"1\"><c r=\"A1\" t=\"s\"><v>0</v></c><c s=\"1\"><v>45415</v></c></row>");
    for (auto part = whole.parts.begin(); part != whole.parts.end(); ++part) {
        for (int at = 0; at < part->size(); ++at) {
            PackedWorkbook damaged = whole;
            damaged.compressed = false;
            damaged.parts[part.key()][at] = static_cast<char>(part->at(at) ^ (1 << at % 7));
            refusal(damaged);
        }
    }
}

TEST(XlsxReader, refuses_xml_made_to_exhaust) {
    QElapsedTimer timer;
    timer.start();
    EXPECT_TRUE(says(refusalOfPart("xl/sharedStrings.xml",
                                   "<!DOCTYPE sst [<!ENTITY a \"aaaaaaaaaa\"><!ENTITY b \"&a;&a;&a;&a;\">]>"
                                   "<sst><si><t>&b;</t></si></sst>"),
                     "document type"));
    EXPECT_TRUE(says(refusalOfRows("<row>" + QByteArray("<a>").repeated(1'000'000)), "nested too deep"));
    EXPECT_TRUE(
        says(refusalOfPart("xl/styles.xml", QByteArray("<a>").repeated(1'000'000)), "nested too deep"));
    EXPECT_TRUE(
        says(refusalOfPart("xl/sharedStrings.xml", "<sst><si>" + QByteArray("<r>").repeated(1'000'000)),
             "nested too deep"));
    EXPECT_TRUE(says(refusalOfRows("<row x=\"" + QByteArray(2'000'000, 'x') + "\"/>"), "too long"));
    EXPECT_TRUE(says(refusalOfRows("<!--" + QByteArray(2'000'000, 'x') + "-->"), "too long"));
    EXPECT_TRUE(says(refusalOfRows("<row><c t=\"str\"><v>" +
                                   (QByteArray(100'000, 'x') + "<!---->").repeated(10) + "</v></c></row>"),
                     "too long"));
    QByteArray attributes;
    for (int i = 0; i < 20'000; ++i) {
        attributes += " a" + QByteArray::number(i) + "=\"\"";
    }
    EXPECT_TRUE(says(refusalOfRows("<row" + attributes + "/>"), "too many attributes"));
    attributes.replace(" a", " xmlns:a").replace("\"\"", "\"n\"");
    EXPECT_TRUE(says(refusalOfRows("<row" + attributes + "/>"), "too many attributes"));
    EXPECT_LT(timer.elapsed(), 20'000);
}

TEST(XlsxReader, refuses_more_than_the_limits_allow) {
    Workbook::Limits limits;
    limits.cells = 3;
    const QByteArray cell = "<c><v>1</v></c>";
    EXPECT_EQ(refusalOfRows("<row>" + cell.repeated(3) + "</row>", limits), "");
    EXPECT_TRUE(says(refusalOfRows("<row>" + cell.repeated(4) + "</row>", limits), "more than 3 cells"));
    limits = {};
    limits.sheets = 2;
    PackedWorkbook packed;
    const QByteArray sheet = "<sheet name=\"x\" r:id=\"worksheet\"/>";
    packed.parts["xl/workbook.xml"].replace("<sheets>", "<sheets>" + sheet.repeated(2));
    EXPECT_TRUE(says(refusal(packed, limits), "more than 2 sheets"));
    limits = {};
    limits.fileBytes = 100;
    EXPECT_TRUE(says(refusal(packed, limits), "is larger than"));
    limits = {};
    limits.unpackedBytes = packed.parts["xl/workbook.xml"].size();
    EXPECT_TRUE(says(refusal(packed, limits), "unpacks to more than"));
    limits = {};
    limits.unpackedBytes = 3000; // each sheet reads the same part again
    packed.parts["xl/worksheets/sheet1.xml"] = "<worksheet>" + QByteArray(1200, ' ') + "</worksheet>";
    EXPECT_TRUE(says(refusal(packed, limits), "unpacks to more than"));
}

// Half a megabyte that asks for hundreds of gigabytes.
TEST(XlsxReader, refuses_cells_so_far_apart_that_the_table_would_not_fit) {
    QByteArray rows;
    for (int row = 1; row <= 20'000; ++row) {
        const QByteArray number = QByteArray::number(row * 50);
        rows += "<row r=\"" + number + "\"><c r=\"XFD" + number + "\"><v>1</v></c></row>";
    }
    EXPECT_TRUE(says(refusalOfRows(rows), "too far apart"));
    PackedWorkbook packed("<row r=\"1048576\"><c><v>1</v></c></row>");
    EXPECT_EQ(refusal(packed), "") << "one such cell is no attack";
    const QByteArray sheet = "<sheet name=\"x\" r:id=\"worksheet\"/>";
    packed.parts["xl/workbook.xml"].replace("<sheets>", "<sheets>" + sheet.repeated(900));
    EXPECT_TRUE(says(refusal(packed), "too far apart"));
}

TEST(XlsxReader, refuses_parts_that_unpack_beyond_belief) {
    PackedWorkbook packed;
    packed.parts["xl/worksheets/sheet1.xml"] =
        "<worksheet>" + QByteArray(32 * 1024 * 1024, ' ') + "</worksheet>";
    EXPECT_TRUE(says(refusal(packed), "far more than a workbook would"));

    // The same, with the size that the archive tells of it made small: in both places that tell it.
    QByteArray bytes = packed.bytes();
    const quint32 size = static_cast<quint32>(packed.parts["xl/worksheets/sheet1.xml"].size());
    const QByteArray told(reinterpret_cast<const char*>(&size), sizeof size);
    ASSERT_GE(bytes.count(told), 1);
    bytes.replace(told, QByteArray("\0\1\0\0", 4));
    const std::string text = refusal(bytes);
    EXPECT_TRUE(text.find("longer") != std::string::npos || text.find("nconsistent") != std::string::npos)
        << text;
}

// libzip reads the list of files again for each of the ends.
TEST(XlsxReader, refuses_archives_whose_lists_of_files_take_minutes_to_read) {
    PackedWorkbook packed;
    for (int part = 0; part < 5'000; ++part) {
        packed.parts["x" + QByteArray::number(part)] = "";
    }
    QByteArray bytes = packed.bytes();
    EXPECT_EQ(refusal(bytes), "") << "the list alone is within the limit";
    const QByteArray end = bytes.right(22);
    ASSERT_TRUE(end.startsWith("PK\x05\x06"));
    EXPECT_TRUE(says(refusal(bytes + end.repeated(1000)), "more files than a workbook would"));

    // The large form of the end, as a locator of it and the record that it locates
    QByteArray large("PK\x06\x06", 4);
    large += QByteArray(36, '\0') + QByteArray(8, '\x7F') + QByteArray(8, '\0');
    QByteArray locator("PK\x06\x07\0\0\0\0", 8);
    const auto place = static_cast<quint64>(bytes.size());
    locator += QByteArray(reinterpret_cast<const char*>(&place), sizeof place) + QByteArray(4, '\0');
    EXPECT_TRUE(says(refusal(bytes + large + locator + end), "more files than a workbook would"));
    locator.fill('\x7F').replace(0, 4, "PK\x06\x07");
    refusal(bytes + large + locator + end); // it points outside of the file
}

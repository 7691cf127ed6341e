#include "ExpectedBook.h"
#include "XlsReader.h"

#include <QtEndian>

namespace {

// Places in the header of a compound file
constexpr int sectorShift = 30;
constexpr int directory = 48;
constexpr int moreTables = 68;
constexpr int firstTable = 76;

const QByteArray small = bytesOf(IMPORT_TEST_DATA "/results-small-stream.xls");
const QByteArray tables = bytesOf(IMPORT_TEST_DATA "/tables.xls");

/// A copy with a number written at a place.
template <class Number>
QByteArray patched(QByteArray bytes, int at, Number number) {
    qToLittleEndian<Number>(number, bytes.data() + at);
    return bytes;
}

/// A copy of the small book with one place, found by what stands there, exchanged for bytes of equal number.
QByteArray exchanged(const QByteArray& before, const QByteArray& after) {
    EXPECT_EQ(small.count(before), 1) << before.toHex().toStdString();
    EXPECT_EQ(before.size(), after.size());
    return QByteArray(small).replace(before, after);
}

/// Where a sector of 512 bytes starts whose number stands in the header at `at`.
int sectorNamedAt(const QByteArray& bytes, int at) {
    return 512 * static_cast<int>(1 + qFromLittleEndian<quint32>(bytes.constData() + at));
}

/// The small book with another name of the stream Workbook.
QByteArray renamed(const QString& name) {
    const QByteArray before("W\0o\0r\0k\0b\0o\0o\0k\0", 16);
    QByteArray entry(reinterpret_cast<const char*>(name.utf16()), 2 * name.size());
    const auto length = static_cast<quint16>(entry.size() + 2);
    entry.append(64 - entry.size(), '\0');
    const int at = small.indexOf(before);
    EXPECT_GT(at, 0);
    return patched<quint16>(QByteArray(small).replace(at, 64, entry), at + 64, length);
}

/// What the user is told when the file is refused; empty if it is read.
std::string refusal(const QByteArray& bytes, const Workbook::Limits& limits = {}) {
    try {
        XlsReader::read(bytes, QStringLiteral("lab & co.xls"), limits);
    } catch (const VKError& error) {
        EXPECT_TRUE(error.message().contains(QStringLiteral("<b>lab &amp; co.xls</b>")));
        EXPECT_FALSE(error.advice().isEmpty());
        return error.text().toStdString();
    }
    return {};
}

void expect(const QByteArray& bytes, const std::string& part, const Workbook::Limits& limits = {}) {
    EXPECT_PRED_FORMAT2(testing::IsSubstring, part, refusal(bytes, limits));
}

template <class Number>
Workbook::Limits limited(Number Workbook::Limits::*limit, int value) {
    Workbook::Limits limits;
    limits.*limit = value;
    return limits;
}

Workbook::Book exchangedBook(const QByteArray& before, const QByteArray& after) {
    return XlsReader::read(exchanged(before, after), QStringLiteral("x.xls"));
}

} // namespace

TEST(XlsReader, a_formula_without_its_stored_text_is_empty_and_told) {
    const QByteArray text("\x07\x02\x0E\0\x0B\0\0stored text", 18);
    const Workbook::Book book = exchangedBook(text, QByteArray(text).replace(0, 2, "\x01\x03"));
    EXPECT_FALSE(book.sheets[0].cell(1, 0).isValid());
    EXPECT_EQ(book.sheets[0].cell(1, 1), QStringLiteral("Ωmega"));
    EXPECT_EQ(book.warnings.filter(QStringLiteral("In sheet <b>Results</b>, 1 formulas")).size(), 1);
}

TEST(XlsReader, what_is_no_number_and_an_unknown_error_stay_errors) {
    const QByteArray number = patched(QByteArray(8, '\0'), 0, 7.25);
    const QByteArray none = patched(number, 0, quint64(0x7FF8000000000000));
    EXPECT_EQ(exchangedBook(number, none).sheets[0].cell(3, 2), QStringLiteral("#NUM!"));
    const QByteArray error("\x05\0\x04\0\0\0\x2A\x01", 8);
    EXPECT_EQ(exchangedBook(error, QByteArray(error).replace('\x2A', '\x2B')).sheets[0].cell(5, 4),
              QStringLiteral("#ERROR43!"));
}

TEST(XlsReader, a_text_longer_than_allowed_is_cut_and_told) {
    const Workbook::Book book = XlsReader::read(bytesOf(IMPORT_TEST_DATA "/long-texts.xls"), "x.xls",
                                                limited(&Workbook::Limits::textLength, 9'999));
    EXPECT_EQ(book.sheets[0].cell(400, 0).toString().size(), 9'999);
    EXPECT_EQ(book.sheets[0].cell(401, 0).toString().size(), 7'000);
    EXPECT_EQ(book.warnings, QStringList{QStringLiteral("1 texts were cut after 9999 characters.")});
}

TEST(XlsRefusals, other_kinds_of_files_are_named) {
    expect({}, "it is empty");
    expect("<html><table>", "not an Excel workbook");
    expect("x", "not an Excel workbook");
    expect("PK\x03\x04 and so on", "Change the ending of its name to .xlsx");
    expect(QByteArray("\x09\x04\x06\0\0\0\x10\0\0\0", 10), "older than that of Excel 97");
    expect(renamed(QStringLiteral("Book")), "older than that of Excel 97");
    expect(renamed(QStringLiteral("WordDocument")), "document of another program");
    expect(renamed(QStringLiteral("EncryptedPackage")), "remove the password");
    EXPECT_EQ(refusal(renamed(QStringLiteral("WORKBOOK"))), "");
}

TEST(XlsRefusals, passwords_older_records_and_books_of_charts_are_named) {
    const QByteArray codePage("\x42\0\x02\0\xB0\x04", 6);
    expect(exchanged(codePage, QByteArray(codePage).replace(0, 1, "\x2F")), "remove the password");
    const QByteArray version("\x09\x08\x10\0\0\x06\x05\0", 8);
    expect(exchanged(version, QByteArray(version).replace(5, 1, "\x05")), "older than that of Excel 97");
    expect(exchanged(version, QByteArray(version).replace(5, 1, "\x07")), "is damaged");
    const QByteArray worksheet("\0\0\x07\0Results", 11);
    expect(exchanged(worksheet, QByteArray(worksheet).replace(1, 1, "\x02")), "holds no worksheet");
}

TEST(XlsRefusals, a_container_that_leads_in_a_circle_or_nowhere_is_refused) {
    const int table = sectorNamedAt(tables, firstTable);
    expect(patched<quint32>(tables, table, 0), "in a circle");
    expect(patched<quint32>(tables, table, 0x00FFFFFF), "ends too early");
    expect(patched<quint32>(tables, table, 0xFFFFFFFF), "is damaged");
    expect(patched<quint32>(tables, table, 0xFFFFFFFE), "ends too early");
    const int entry = sectorNamedAt(small, directory) + 128;
    expect(patched<quint32>(small, entry + 68, 1), "in a circle");
    expect(patched<quint32>(small, entry + 68, 9999), "is damaged");
    expect(patched<quint32>(tables, sectorNamedAt(tables, directory) + 128 + 120, 0x7FFFFFFF),
           "ends too early");
    for (const int shift : {0, 8, 10, 31, 0xFFFF}) {
        expect(patched(small, sectorShift, static_cast<quint16>(shift)), "is damaged");
    }
    // A list of tables that names none and leads to itself
    const QByteArray listed = bytesOf(IMPORT_TEST_DATA "/results-listed-table.xls");
    const int list = sectorNamedAt(listed, moreTables);
    QByteArray loop = patched<quint32>(listed, list, 0xFFFFFFFF);
    loop.replace(list + 508, 4, listed.mid(moreTables, 4));
    expect(loop, "in a circle");
}

TEST(XlsRefusals, counts_and_places_that_records_claim_are_checked) {
    const QByteArray counts("\x06\0\0\0\x06\0\0\0", 8);
    expect(exchanged(counts, QByteArray("\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF", 8)), "is damaged");
    expect(exchanged(counts, QByteArray("\x06\0\0\0\x05\0\0\0", 8)), "sheet <b>Results</b>");
    const QByteArray numbers("\xBD\0\x2A\0", 4);
    for (const char length : {'\0', '\x05', '\x06', '\x29', '\x24'}) {
        expect(exchanged(numbers, QByteArray(numbers).replace(2, 1, &length, 1)), "is damaged");
    }
    // The runs of a formatted text, and a length beyond the file
    expect(exchanged(QByteArray("\x04\0\x08\x03\0", 5), QByteArray("\x04\0\x08\xFF\xFF", 5)), "is damaged");
    expect(exchanged(QByteArray("\xE5\0\x12\0", 4), QByteArray("\xE5\0\xFF\xFF", 4)), "ends too early");
}

TEST(XlsRefusals, sheets_that_lie_upon_each_other_are_refused) {
    // Each sheet of the list at the place of the first, which holds most of the file
    QByteArray file = tables;
    QByteArray place;
    for (int at = file.indexOf("\x85", 512); at >= 0; at = file.indexOf("\x85", at + 1)) {
        if (file[at + 1] == '\0' && file[at + 3] == '\0') {
            place = place.isEmpty() ? file.mid(at + 4, 4) : place;
            file.replace(at + 4, 4, place);
        }
    }
    expect(file, "is damaged");
}

TEST(XlsRefusals, limits_hold) {
    using Limits = Workbook::Limits;
    expect(tables, "larger than 0 MiB", limited(&Limits::fileBytes, tables.size() - 1));
    expect(tables, "0 MiB of memory", limited(&Limits::unpackedBytes, 6'000));
    expect(tables, "more than 255 columns", limited(&Limits::columns, 255));
    expect(tables, "more than 40 rows", limited(&Limits::rows, 40));
    expect(tables, "more than 50 cells", limited(&Limits::cells, 50));
    expect(tables, "more than 4 sheets", limited(&Limits::sheets, 4));
    Limits limits;
    limits.fileBytes = tables.size();
    limits.columns = 256;
    limits.rows = 41;
    limits.sheets = 5;
    EXPECT_EQ(refusal(tables, limits), "");
}

TEST(XlsRefusals, a_file_cut_anywhere_is_refused) {
    for (int size = 0; size < small.size(); ++size) {
        EXPECT_NE(refusal(small.left(size)), "") << size;
    }
    // It ends with the free places of its directory.
    for (int size = 0; size < tables.size() - 256; size += 31) {
        EXPECT_NE(refusal(tables.left(size)), "") << size;
    }
}

TEST(XlsRefusals, no_byte_flipped_brings_the_reader_down) {
    int read = 0;
    for (int at = 0; at < small.size(); ++at) {
        for (const int flip : {0x01, 0x80, 0xFF}) {
            QByteArray bytes = small;
            bytes[at] = static_cast<char>(bytes[at] ^ flip);
            read += refusal(bytes).empty() ? 1 : 0;
        }
    }
    EXPECT_GT(read, 1000); // much of the file is padding and text
    EXPECT_LT(read, 3 * small.size());
}

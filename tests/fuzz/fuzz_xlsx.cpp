#include "PackedWorkbook.h"
#include "VKError.h"
#include "WorkbookReader.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

void require(bool condition) {
    if (!condition)
        std::abort();
}

void checkSheet(const Workbook::Sheet& sheet) {
    for (const auto& cells : sheet.rows) {
        require(cells.empty() || cells.back().isValid());
        for (const QVariant& cell : cells) {
            const bool isText = cell.type() == QVariant::String && !cell.toString().isNull();
            require(!cell.isValid() || cell.type() == QVariant::Double || isText);
        }
    }
    require(sheet.rows.empty() || !sheet.rows.back().empty());
}

/// Sums over the packed bytes stop nearly every change to them; so most inputs are parts, not yet packed:
/// the number of a part as a digit, then its content.
QByteArray packed(const QByteArray& input) {
    static const QByteArray names[] = {
        "xl/worksheets/sheet1.xml", "xl/sharedStrings.xml", "xl/styles.xml",
        "xl/workbook.xml",          "_rels/.rels",          "xl/_rels/workbook.xml.rels"};
    PackedWorkbook workbook("<row><c t=\"s\"><v>0</v></c><c s=\"1\"><v>45415</v></c></row>");
    workbook.compressed = false;
    workbook.parts[names[static_cast<unsigned char>(input[0]) % std::size(names)]] = input.mid(1);
    return workbook.bytes();
}

} // namespace

// Whatever the bytes are, a workbook comes out as promised or a VKError.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray input(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const bool isPart = !input.isEmpty() && !WorkbookReader::looksLikeWorkbook(input);
    Workbook::Limits limits;
    limits.places = 100'000;
    try {
        const Workbook::Book book = WorkbookReader::read(isPart ? packed(input) : input, "fuzz.xlsx", limits);
        require(!book.sheets.empty());
        for (const Workbook::Sheet& sheet : book.sheets)
            checkSheet(sheet);
    } catch (const VKError& error) {
        require(!error.message().isEmpty());
    }
    return 0;
}

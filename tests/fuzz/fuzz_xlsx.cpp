#include "PackedWorkbook.h"
#include "WorkbookReader.h"
#include "checkedbook.h"

namespace {

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
    requireBookOrError(
        [&] { return WorkbookReader::read(isPart ? packed(input) : input, "fuzz.xlsx", limits); });
    return 0;
}

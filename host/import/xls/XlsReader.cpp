#include "XlsReader.h"

#include "BiffRecord.h"
#include "CompoundFile.h"
#include "VKError.h"
#include "XlsBudget.h"
#include "XlsGlobals.h"
#include "XlsRefusal.h"
#include "XlsSheetParser.h"

#include <QCoreApplication>

#include <utility>

namespace {

using Cause = XlsRefusal::Cause;

/// What is no compound file may be an old workbook, which needed none, or a new one, which is an archive.
Cause causeOfOtherFormat(const QByteArray& bytes) {
    if (bytes.isEmpty()) {
        return Cause::Empty;
    }
    if (bytes.startsWith("PK\x03\x04")) {
        return Cause::Xlsx;
    }
    const quint16 first = bytes.size() < 2 ? quint16{0} : BiffCursor(bytes, 0, 2).u16();
    const bool isStart = first == BiffRecord::BofOfBiff2 || first == BiffRecord::BofOfBiff3 ||
                         first == BiffRecord::BofOfBiff4 || first == BiffRecord::Bof;
    return isStart ? Cause::OlderFormat : Cause::OtherFormat;
}

QByteArray workbookStream(const QByteArray& bytes) {
    if (!CompoundFile::hasSignature(bytes)) {
        throw XlsRefusal(causeOfOtherFormat(bytes));
    }
    const CompoundFile file(bytes);
    if (file.contains(QStringLiteral("EncryptedPackage"))) { // an .xlsx under a password
        throw XlsRefusal(Cause::Protected);
    }
    if (file.contains(QStringLiteral("Workbook"))) {
        return file.stream(QStringLiteral("Workbook"));
    }
    const bool isOlder = file.contains(QStringLiteral("Book"));
    throw XlsRefusal(isOlder ? Cause::OlderFormat : Cause::NoWorkbook);
}

QString translated(const char* english, const char* french) {
    return QCoreApplication::translate("XlsReader", english, french);
}

QString warningOfMissing(int count, const QString& sheet) {
    return translated(
               "In sheet <b>%1</b>, %2 formulas have no stored result and count as empty; open the file "
               "in a spreadsheet program and save it.",
               "Dans la feuille <b>%1</b>, %2 formules n'ont pas de résultat enregistré et comptent "
               "comme vides ; ouvrez le fichier dans un tableur et enregistrez-le.")
        .arg(sheet.toHtmlEscaped(), QString::number(count));
}

QString warningOfOther(const QString& sheet) {
    return translated("Sheet <b>%1</b> holds no table and was left out.",
                      "La feuille <b>%1</b> ne contient pas de tableau et a été ignorée.")
        .arg(sheet.toHtmlEscaped());
}

QString warningOfCut(int count, int length) {
    return translated("%1 texts were cut after %2 characters.",
                      "%1 textes ont été coupés après %2 caractères.")
        .arg(count)
        .arg(length);
}

/// Reads one sheet into the book and returns how many bytes of the stream it took.
qint64 readSheet(const QByteArray& stream, const XlsGlobals::SheetPlace& place, const XlsGlobals& globals,
                 XlsBudget& budget, Workbook::Book& book) {
    Workbook::Sheet sheet;
    sheet.name = place.name;
    sheet.hidden = place.hidden;
    XlsSheetParser parser(globals, budget, sheet);
    qint64 end = 0;
    try {
        end = parser.parse(stream, place.position);
    } catch (XlsRefusal& refusal) {
        refusal.setSheet(place.name);
        throw;
    }
    if (parser.missingResults() > 0) {
        book.warnings << warningOfMissing(parser.missingResults(), place.name);
    }
    book.sheets.push_back(std::move(sheet));
    return end - place.position;
}

Workbook::Book readBook(const QByteArray& bytes, const Workbook::Limits& limits) {
    if (bytes.size() > limits.fileBytes) {
        throw XlsRefusal(Cause::FileTooLarge);
    }
    const QByteArray stream = workbookStream(bytes);
    XlsBudget budget(limits);
    const XlsGlobals globals(stream, budget);
    Workbook::Book book;
    for (const QString& name : globals.otherSheets()) {
        book.warnings << warningOfOther(name);
    }
    qint64 taken = 0;
    for (const XlsGlobals::SheetPlace& place : globals.worksheets()) {
        taken += readSheet(stream, place, globals, budget, book);
        if (taken > stream.size()) { // sheets that lie upon each other would be read any number of times
            throw XlsRefusal(Cause::Damaged);
        }
    }
    if (book.sheets.empty()) {
        throw XlsRefusal(Cause::NoWorksheet);
    }
    if (budget.cutTexts() > 0) {
        book.warnings << warningOfCut(budget.cutTexts(), limits.textLength);
    }
    return book;
}

} // namespace

Workbook::Book XlsReader::read(const QByteArray& bytes, const QString& fileName,
                               const Workbook::Limits& limits) {
    try {
        return readBook(bytes, limits);
    } catch (const XlsRefusal& refusal) {
        throw refusal.toError(fileName, limits);
    }
}

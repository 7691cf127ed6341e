#include "WorkbookReader.h"

#include "CompoundFile.h"
#include "VKError.h"
#include "XlsReader.h"
#include "XlsxReader.h"

namespace {

constexpr char zipMagic[] = "PK\x03\x04";

bool isZip(const QByteArray& bytes) {
    return bytes.startsWith(zipMagic);
}

} // namespace

bool WorkbookReader::looksLikeWorkbook(const QByteArray& beginning) {
    return isZip(beginning) || CompoundFile::hasSignature(beginning);
}

Workbook::Book WorkbookReader::read(const QByteArray& bytes, const QString& fileName,
                                    const Workbook::Limits& limits) {
    if (isZip(bytes)) {
        return XlsxReader::read(bytes, fileName, limits);
    }
    if (CompoundFile::hasSignature(bytes)) {
        return XlsReader::read(bytes, fileName, limits);
    }
    refuse(fileName,
           bytes.isEmpty() ? tr("it is empty.", "il est vide.")
                           : tr("its content is no Excel workbook, whatever its name.",
                                "son contenu n'est pas un classeur Excel, quel que soit son nom."),
           tr("Open it in the program that made it and save it as an Excel workbook (.xlsx).",
              "Ouvrez-le dans le programme qui l'a créé et enregistrez-le comme classeur Excel (.xlsx)."));
}

void WorkbookReader::refuse(const QString& fileName, const QString& cause, const QString& advice) {
    throw VKError(
        tr("The workbook <b>%1</b> can't be read: %2", "Le classeur <b>%1</b> ne peut pas être lu : %2")
            .arg(fileName.toHtmlEscaped(), cause),
        {}, advice);
}

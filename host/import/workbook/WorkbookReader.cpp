#include "WorkbookReader.h"

#include "VKError.h"
#include "XlsxReader.h"

#include <QtEndian>

namespace {

constexpr char zipMagic[] = "PK\x03\x04";
constexpr char compoundMagic[] = "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1";

bool isZip(const QByteArray& bytes) {
    return bytes.startsWith(zipMagic);
}

bool isCompound(const QByteArray& bytes) {
    return bytes.startsWith(compoundMagic);
}

/// Whether a compound file's directory names the stream that takes the place of a workbook under a password.
/// Entries of 128 bytes lie at multiples of their size: the name, then its length with the closing zero.
bool holdsEncryptedWorkbook(const QByteArray& bytes) {
    constexpr int entrySize = 128;
    constexpr int lengthAt = 64;
    const QString name = QStringLiteral("EncryptedPackage");
    const QByteArray pattern(reinterpret_cast<const char*>(name.utf16()), 2 * name.size());
    for (int at = bytes.indexOf(pattern); at >= 0; at = bytes.indexOf(pattern, at + 1)) {
        const bool isEntry = at % entrySize == 0 && bytes.size() - at >= entrySize;
        if (isEntry && qFromLittleEndian<quint16>(bytes.constData() + at + lengthAt) == pattern.size() + 2) {
            return true;
        }
    }
    return false;
}

} // namespace

bool WorkbookReader::looksLikeWorkbook(const QByteArray& beginning) {
    return isZip(beginning) || isCompound(beginning);
}

Workbook::Book WorkbookReader::read(const QByteArray& bytes, const QString& fileName,
                                    const Workbook::Limits& limits) {
    if (isZip(bytes)) {
        return XlsxReader::read(bytes, fileName, limits);
    }
    if (isCompound(bytes) && holdsEncryptedWorkbook(bytes)) {
        refuse(fileName, tr("it is protected by a password.", "il est protégé par un mot de passe."),
               tr("Open it in a spreadsheet program and save it without the password.",
                  "Ouvrez-le dans un tableur et enregistrez-le sans le mot de passe."));
    }
    if (isCompound(bytes)) {
        refuse(
            fileName,
            tr("it has the format of Excel 97 to 2003 (.xls).", "il est au format d'Excel 97 à 2003 (.xls)."),
            tr("Open it in a spreadsheet program and save it as an Excel workbook (.xlsx).",
               "Ouvrez-le dans un tableur et enregistrez-le comme classeur Excel (.xlsx)."));
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

#include "XlsRefusal.h"

#include "VKError.h"

#include <QCoreApplication>
#include <QDir>

namespace {

using Cause = XlsRefusal::Cause;

QString translated(const char* english, const char* french) {
    return QCoreApplication::translate("XlsRefusal", english, french);
}

QString reason(Cause cause) {
    switch (cause) {
    case Cause::Empty:
        return translated("it is empty.", "il est vide.");
    case Cause::OtherFormat:
        return translated("it is not an Excel workbook.", "ce n'est pas un classeur Excel.");
    case Cause::Xlsx:
        return translated("it is a workbook of the format .xlsx under the name of an .xls.",
                          "c'est un classeur au format .xlsx sous le nom d'un .xls.");
    case Cause::OlderFormat:
        return translated("it is in a format older than that of Excel 97.",
                          "son format est antérieur à celui d'Excel 97.");
    case Cause::Protected:
        return translated("it is protected by a password.", "il est protégé par un mot de passe.");
    case Cause::NoWorkbook:
        return translated("it holds no workbook, but a document of another program.",
                          "il ne contient pas de classeur, mais un document d'un autre programme.");
    case Cause::NoWorksheet:
        return translated("it holds no worksheet.", "il ne contient aucune feuille de calcul.");
    case Cause::Truncated:
        return translated("it ends too early, as after an interrupted copy.",
                          "il se termine trop tôt, comme après une copie interrompue.");
    case Cause::Damaged:
        return translated("it is damaged.", "il est endommagé.");
    case Cause::Loop:
        return translated("it is damaged: its parts lead in a circle.",
                          "il est endommagé : ses parties forment un cercle.");
    case Cause::FileTooLarge:
        return translated("it is too large.", "il est trop volumineux.");
    case Cause::TooLargeUnpacked:
        return translated("its tables are too large for the memory.",
                          "ses tableaux sont trop grands pour la mémoire.");
    case Cause::TooManyCells:
        return translated("it holds too many cells.", "il contient trop de cellules.");
    case Cause::TooManySheets:
        return translated("it holds too many sheets.", "il contient trop de feuilles.");
    case Cause::TextTooLong:
        return translated("a text in it is longer than a cell can hold.",
                          "un de ses textes est plus long que ce qu'une cellule peut contenir.");
    }
    return {};
}

QString advice(Cause cause) {
    switch (cause) {
    case Cause::Empty:
    case Cause::Truncated:
    case Cause::Damaged:
    case Cause::Loop:
    case Cause::TextTooLong:
        return translated("Copy it again from where it came from, or open it in Excel and save it as .xlsx.",
                          "Copiez-le à nouveau depuis son origine, ou ouvrez-le dans Excel et enregistrez-le "
                          "au format .xlsx.");
    case Cause::OtherFormat:
    case Cause::OlderFormat:
        return translated("Open it in Excel and save it as .xlsx.",
                          "Ouvrez-le dans Excel et enregistrez-le au format .xlsx.");
    case Cause::Xlsx:
        return translated("Change the ending of its name to .xlsx.", "Changez la fin de son nom en .xlsx.");
    case Cause::Protected:
        return translated("Open it in Excel, remove the password and save it again.",
                          "Ouvrez-le dans Excel, supprimez le mot de passe et enregistrez-le à nouveau.");
    case Cause::NoWorkbook:
    case Cause::NoWorksheet:
        return translated("Choose a workbook with a table.", "Choisissez un classeur contenant un tableau.");
    case Cause::FileTooLarge:
    case Cause::TooLargeUnpacked:
    case Cause::TooManyCells:
    case Cause::TooManySheets:
        return translated("Split it into several workbooks.", "Divisez-le en plusieurs classeurs.");
    }
    return {};
}

} // namespace

XlsRefusal::~XlsRefusal() = default;

VKError XlsRefusal::toError(const QString& fileName) const {
    const QString message =
        translated("File <b>%1</b> cannot be read: %2", "Le fichier <b>%1</b> ne peut pas être lu : %2")
            .arg(QDir::toNativeSeparators(fileName).toHtmlEscaped(), reason(m_cause));
    const QString place = m_sheet.isEmpty()
                              ? QString()
                              : translated("(In the sheet <b>%1</b>.)", "(Dans la feuille <b>%1</b>.)")
                                    .arg(m_sheet.toHtmlEscaped());
    return VKError(message, place, advice(m_cause));
}

#include "XlsRefusal.h"

#include "VKError.h"

#include <QCoreApplication>

namespace {

using Cause = XlsRefusal::Cause;

constexpr qint64 mebibyte = 1024LL * 1024;

QString translated(const char* english, const char* french) {
    return QCoreApplication::translate("XlsRefusal", english, french);
}

QString reason(Cause cause, const Workbook::Limits& limits) {
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
        return translated("it is larger than %1 MiB.", "il dépasse %1 Mio.").arg(limits.fileBytes / mebibyte);
    case Cause::TooLargeUnpacked:
        return translated("its tables would take more than %1 MiB of memory.",
                          "ses tableaux occuperaient plus de %1 Mio de mémoire.")
            .arg(limits.unpackedBytes / mebibyte);
    case Cause::TooManyCells:
        return translated("it has more than %1 cells.", "il a plus de %1 cellules.").arg(limits.cells);
    case Cause::TooManySheets:
        return translated("it has more than %1 sheets.", "il a plus de %1 feuilles.").arg(limits.sheets);
    case Cause::TooManyRows:
        return translated("a table in it has more than %1 rows.", "un de ses tableaux a plus de %1 lignes.")
            .arg(limits.rows);
    case Cause::TooManyColumns:
        return translated("a table in it has more than %1 columns.",
                          "un de ses tableaux a plus de %1 colonnes.")
            .arg(limits.columns);
    }
    return {};
}

QString advice(Cause cause) {
    switch (cause) {
    case Cause::Empty:
    case Cause::Truncated:
    case Cause::Damaged:
    case Cause::Loop:
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
    case Cause::TooManyRows:
    case Cause::TooManyColumns:
        return translated("Split it into several workbooks.", "Divisez-le en plusieurs classeurs.");
    }
    return {};
}

} // namespace

XlsRefusal::~XlsRefusal() = default;

VKError XlsRefusal::toError(const QString& fileName, const Workbook::Limits& limits) const {
    const QString message = translated("The workbook <b>%1</b> can't be read: %2",
                                       "Le classeur <b>%1</b> ne peut pas être lu : %2")
                                .arg(fileName.toHtmlEscaped(), reason(m_cause, limits));
    const QString place = m_sheet.isEmpty()
                              ? QString()
                              : translated("(In the sheet <b>%1</b>.)", "(Dans la feuille <b>%1</b>.)")
                                    .arg(m_sheet.toHtmlEscaped());
    return VKError(message, place, advice(m_cause));
}

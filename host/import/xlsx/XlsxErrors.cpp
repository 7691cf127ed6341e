#include "XlsxErrors.h"

namespace {

constexpr qint64 mebibyte = 1024LL * 1024;

QString bold(const QString& name) {
    return QStringLiteral("<b>%1</b>").arg(name.toHtmlEscaped());
}

} // namespace

QString XlsxErrors::refusal(const QString& cause) const {
    return tr("The workbook %1 can't be read: %2", "Le classeur %1 ne peut pas être lu : %2")
        .arg(bold(m_fileName), cause);
}

QString XlsxErrors::saveAgain() {
    return tr("Open it in a spreadsheet program and save it as an Excel workbook (.xlsx).",
              "Ouvrez-le dans un tableur et enregistrez-le comme classeur Excel (.xlsx).");
}

QString XlsxErrors::split() {
    return tr("Split it into several files, or remove what is not needed.",
              "Divisez-le en plusieurs fichiers ou retirez ce qui est inutile.");
}

VKError XlsxErrors::noWorkbook() const {
    return VKError(refusal(tr("it is a zip archive without a workbook in it.",
                              "c'est une archive zip qui ne contient aucun classeur.")),
                   {}, saveAgain());
}

VKError XlsxErrors::binaryWorkbook() const {
    return VKError(refusal(tr("it is a binary workbook (.xlsb), whatever its name.",
                              "c'est un classeur binaire (.xlsb), quel que soit son nom.")),
                   {}, saveAgain());
}

VKError XlsxErrors::openDocument() const {
    return VKError(refusal(tr("it is an OpenDocument file (.ods), whatever its name.",
                              "c'est un fichier OpenDocument (.ods), quel que soit son nom.")),
                   {}, saveAgain());
}

VKError XlsxErrors::noSheet() const {
    return VKError(refusal(tr("it has no sheet with cells.", "il n'a aucune feuille de calcul.")), {},
                   tr("Put the table on a worksheet.", "Placez le tableau sur une feuille de calcul."));
}

VKError XlsxErrors::damagedArchive(const QString& cause) const {
    return VKError(refusal(tr("it is cut off or damaged.", "il est tronqué ou endommagé.")),
                   QStringLiteral("(%1)").arg(cause.toHtmlEscaped()),
                   tr("Copy it again from where it came.", "Copiez-le à nouveau depuis sa source."));
}

VKError XlsxErrors::damagedPart(const QString& part, const QString& cause) const {
    return VKError(refusal(tr("it is damaged.", "il est endommagé.")),
                   tr("(Part %1: %2)", "(Partie %1 : %2)").arg(bold(part), cause.toHtmlEscaped()),
                   saveAgain());
}

VKError XlsxErrors::damagedPart(const QString& part, qint64 line, const QString& cause) const {
    return VKError(refusal(tr("it is damaged.", "il est endommagé.")),
                   tr("(Part %1, line %2: %3)", "(Partie %1, ligne %2 : %3)")
                       .arg(bold(part), QString::number(line), cause.toHtmlEscaped()),
                   saveAgain());
}

VKError XlsxErrors::missingPart(const QString& part) const {
    return damagedPart(part, tr("it is missing", "elle manque"));
}

VKError XlsxErrors::encrypted(const QString& part) const {
    return VKError(refusal(tr("it is encrypted.", "il est chiffré.")),
                   tr("(Part %1)", "(Partie %1)").arg(bold(part)),
                   tr("Save it without a password.", "Enregistrez-le sans mot de passe."));
}

VKError XlsxErrors::tooLarge(qint64 bytes) const {
    return VKError(refusal(tr("it is larger than %1 MiB.", "il dépasse %1 Mio.").arg(bytes / mebibyte)), {},
                   split());
}

VKError XlsxErrors::unpacksTooLarge(qint64 bytes) const {
    return VKError(
        refusal(
            tr("it unpacks to more than %1 MiB.", "décompressé, il dépasse %1 Mio.").arg(bytes / mebibyte)),
        {}, split());
}

VKError XlsxErrors::bomb(const QString& part) const {
    return VKError(refusal(tr("it unpacks to far more than a workbook would.",
                              "décompressé, il est bien plus grand que ne le serait un classeur.")),
                   tr("(Part %1)", "(Partie %1)").arg(bold(part)), saveAgain());
}

VKError XlsxErrors::tooManyParts() const {
    return VKError(refusal(tr("it holds more files than a workbook would.",
                              "il contient plus de fichiers que n'en aurait un classeur.")),
                   {}, saveAgain());
}

VKError XlsxErrors::tooManySheets(int limit) const {
    return VKError(refusal(tr("it has more than %1 sheets.", "il a plus de %1 feuilles.").arg(limit)), {},
                   split());
}

VKError XlsxErrors::tooManyCells(qint64 limit) const {
    return VKError(refusal(tr("it has more than %1 cells.", "il a plus de %1 cellules.").arg(limit)), {},
                   split());
}

VKError XlsxErrors::tooManyGaps() const {
    return VKError(refusal(tr("its cells lie too far apart.", "ses cellules sont trop éloignées.")), {},
                   tr("Remove cells far to the right of the table or far below it.",
                      "Retirez les cellules loin à droite du tableau ou loin en dessous."));
}

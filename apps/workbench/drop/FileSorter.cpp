#include "FileSorter.h"

#include "RawFileKind.h"
#include "RegularFile.h"
#include "TableGuess.h"
#include "WorkbookReader.h"

#include <QFileInfo>

namespace {

enum class Named { Raw, Table, Project, Other };

QString suffixOf(const QString& path) {
    return QFileInfo(path).suffix().toLower();
}

Named namedAs(const QString& path) {
    static const QStringList tables{"xls", "xlsx", "xlsm"};
    if (RawFileKind::ofName(path) != RawFileKind::Kind::Other) {
        return Named::Raw;
    }
    if (tables.contains(suffixOf(path))) {
        return Named::Table;
    }
    return suffixOf(path) == QLatin1String("vornproj") ? Named::Project : Named::Other;
}

bool looksLikeDatabase(const QByteArray& head) {
    return head.startsWith("SQLite format 3");
}

bool isContentOf(Named name, const QByteArray& head) {
    switch (name) {
    case Named::Raw:
        return RawFileKind::looksRaw(head);
    case Named::Table:
        return WorkbookReader::looksLikeWorkbook(head);
    case Named::Project:
        return looksLikeDatabase(head);
    case Named::Other:
        break;
    }
    return false;
}

} // namespace

SortedFile FileSorter::sort(const QString& path) {
    SortedFile sorted{path, FileKind::Unknown, {}};
    RegularFile file(path);
    const QByteArray head = file.read(RawFileKind::headSize);
    const Named name = namedAs(path);
    if (!file.refusal().isEmpty()) {
        sorted.reason = file.refusal();
    } else if (head.isEmpty()) {
        sorted.reason = tr("it is empty; export or copy it again", "il est vide ; exportez-le ou copiez-le à "
                                                                   "nouveau");
    } else if (QFileInfo(path).fileName().startsWith(QLatin1String("~$"))) {
        sorted.reason = tr("it is a note that a spreadsheet keeps beside an open workbook; drop the workbook",
                           "c'est une note qu'un tableur garde à côté d'un classeur ouvert ; déposez le "
                           "classeur");
    } else if (!isContentOf(name, head)) {
        sorted.reason = name == Named::Other ? strangerReason(path, head) : wrongContent(path);
    } else if (name == Named::Table) {
        sorted.kind = TableGuess::of(path);
    } else {
        sorted.kind = name == Named::Raw ? FileKind::Raw : FileKind::Project;
    }
    return sorted;
}

QString FileSorter::wrongContent(const QString& path) {
    switch (namedAs(path)) {
    case Named::Raw:
        return tr("no section in square brackets stands near its beginning, so this is no raw Rock-Eval "
                  "file; export it from the analyser again",
                  "aucune section entre crochets ne figure près du début, ce n'est donc pas un fichier brut "
                  "Rock-Eval ; exportez-le à nouveau de l'analyseur");
    case Named::Table:
        return tr("its content is no Excel workbook, whatever its name; save it as one",
                  "son contenu n'est pas un classeur Excel, quel que soit son nom ; enregistrez-le comme "
                  "tel");
    default:
        return tr("its content is no project, whatever its name; look for a copy of the project",
                  "son contenu n'est pas un projet, quel que soit son nom ; cherchez une copie du projet");
    }
}

QString FileSorter::strangerReason(const QString& path, const QByteArray& head) {
    static const QStringList textTables{"csv", "tsv", "ods"};
    static const QStringList archives{"zip", "7z", "gz", "tgz", "rar", "tar"};
    const QString suffix = suffixOf(path);
    if (archives.contains(suffix)) {
        return tr("archives are not looked into; unpack it and drop the folder",
                  "les archives ne sont pas ouvertes ; décompressez-la et déposez le dossier");
    }
    if (textTables.contains(suffix)) {
        return tr("the imports read Excel workbooks alone; open it in a spreadsheet and save it as .xlsx",
                  "les imports ne lisent que des classeurs Excel ; ouvrez-le dans un tableur et "
                  "enregistrez-le en .xlsx");
    }
    if (RawFileKind::looksRaw(head)) {
        return tr("it looks like a raw Rock-Eval file under another name; let its name end in .S00 for a "
                  "signal or .R00 for results",
                  "il ressemble à un fichier brut Rock-Eval sous un autre nom ; donnez-lui l'extension .S00 "
                  "pour un signal ou .R00 pour des résultats");
    }
    return tr("no module reads files of this kind; the imports take .S00, .R00, .xlsx and .xls",
              "aucun module ne lit les fichiers de ce type ; les imports prennent .S00, .R00, .xlsx et "
              ".xls");
}

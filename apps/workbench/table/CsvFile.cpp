#include "CsvFile.h"

#include "CsvText.h"
#include "VKError.h"

#include <QAbstractItemModel>
#include <QCoreApplication>
#include <QDir>
#include <QSaveFile>

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(CsvFile)
};

bool writeAll(QSaveFile& file, const QAbstractItemModel& table) {
    const CsvText csv(table);
    const auto write = [&file](const QByteArray& text) { return file.write(text) == text.size(); };
    bool written = file.open(QIODevice::WriteOnly) && write(csv.head());
    const int rows = table.rowCount();
    for (int row = 0; written && row < rows; ++row) {
        written = write(csv.row(row));
    }
    return written && file.commit();
}

} // namespace

void CsvFile::write(const QAbstractItemModel& table, const QString& path) {
    QSaveFile file(path);
    if (writeAll(file, table)) {
        return;
    }
    throw VKError(
        Texts::tr("The table could not be written.", "Le tableau n'a pas pu être écrit."),
        QStringLiteral("<b>%1</b>: %2.")
            .arg(QDir::toNativeSeparators(path).toHtmlEscaped(), file.errorString().toHtmlEscaped()),
        Texts::tr("Choose another folder or free some space.",
                  "Choisissez un autre dossier ou libérez de l'espace."));
}

#include "ModelSample.h"

#include "SampleStore.h"
#include "VKDataModel.h"
#include "VKError.h"

#include <QAbstractItemModel>
#include <QCoreApplication>

namespace ModelSample {

namespace {

QString translated(const char* english, const char* french) {
    return QCoreApplication::translate("ModelSample", english, french);
}

void checkSize(qint64 rows, qint64 columns) {
    if (rows * columns <= TechDB::SampleStore::maximumCells) {
        return;
    }
    throw VKError(translated("A table of %1 rows and %2 columns is too large to be stored.",
                             "Un tableau de %1 lignes et %2 colonnes est trop grand pour être enregistré.")
                      .arg(rows)
                      .arg(columns),
                  {}, translated("Divide the data.", "Divisez les données."));
}

QStringList headers(const QAbstractItemModel& model, Qt::Orientation orientation, int role, int before) {
    const int count = orientation == Qt::Horizontal ? model.columnCount() : model.rowCount();
    QStringList names;
    names.reserve(count);
    for (int section = 0; section < count; ++section) {
        const QString name = model.headerData(section, orientation, role).toString();
        names.append(name.isEmpty() ? QString::number(before + section + 1) : name);
    }
    return names;
}

/// The value as a sample keeps it.
QVariant cell(const QModelIndex& index, int role) {
    const QVariant value = index.data(role);
    if (value.isNull()) {
        return {};
    }
    if (VKDataModel::isNumber(value)) {
        return value.toDouble();
    }
    const QString text = value.toString();
    if (!text.isEmpty()) {
        return text;
    }
    if (value.canConvert<QString>()) {
        return {};
    }
    throw VKError(translated("The value in row %1, column %2 is neither a number nor a text.",
                             "La valeur en ligne %1, colonne %2 n'est ni un nombre ni un texte.")
                      .arg(index.row() + 1)
                      .arg(index.column() + 1),
                  {},
                  translated("Correct it in the file and import the file again.",
                             "Corrigez-la dans le fichier et importez-le à nouveau."));
}

} // namespace

TechDB::SampleTable read(const QAbstractItemModel& model, int role, int columnsBefore) {
    const int rows = model.rowCount();
    const int columns = model.columnCount();
    checkSize(rows, columns);
    TechDB::SampleTable table;
    table.rowNames = headers(model, Qt::Vertical, role, 0);
    table.columnNames = headers(model, Qt::Horizontal, role, columnsBefore);
    table.cells.reserve(rows * columns);
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            table.cells.append(cell(model.index(row, column), role));
        }
    }
    if (const auto* const own = qobject_cast<const VKDataModel*>(&model)) {
        table.properties = own->properties();
    }
    return table;
}

} // namespace ModelSample

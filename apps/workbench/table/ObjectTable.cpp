#include "ObjectTable.h"

#include "CsvFile.h"
#include "CurveTable.h"
#include "DatasetTable.h"
#include "MessageLoggerInterface.h"
#include "OriginFile.h"
#include "TDatabase.h"
#include "TExportCommand.h"
#include "TableOrigin.h"
#include "VKDataModelGeneric.h"
#include "VKError.h"
#include "VKObject2.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <optional>
#include <string>
#include <utility>

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(ObjectTable)
};

std::unique_ptr<VKDataModel> datasetTable(const TechDB::TDatabase& database, qint64 key) {
    DatasetTable dataset;
    for (const auto& [name, sample] : database.sampleTables(key)) {
        dataset.add(name, sample);
    }
    return dataset.table();
}

std::unique_ptr<VKDataModel> contentsOf(const VKObject2& object) {
    const TechDB::TDatabase* const database = object.db();
    if (database == nullptr) {
        throw VKError(
            Texts::tr("<b>%1</b> is not stored in a project; import its file first.",
                      "<b>%1</b> n'est enregistré dans aucun projet ; importez d'abord son fichier.")
                .arg(object.displayName().toHtmlEscaped()));
    }
    if (object.type() == VKObjectType::Well) {
        return datasetTable(*database, object.key());
    }
    return std::make_unique<CurveTable>(database->curve(object.key()));
}

// A path in the folder where no file lies yet, nor one about its origin.
QString freePath(const QDir& folder, const QString& name) {
    const auto isTaken = [](const QString& path) {
        return QFileInfo::exists(path) ||
               QFileInfo::exists(QString::fromStdString(gradereport::originPath(path.toStdString())));
    };
    const QString base = TechPlot::TExportCommand::fileNameFor(name);
    QString path = folder.filePath(base + QStringLiteral(".csv"));
    for (int number = 2; isTaken(path); ++number) {
        path = folder.filePath(QStringLiteral("%1 (%2).csv").arg(base, QString::number(number)));
    }
    return path;
}

gradereport::OriginInput inputOf(const VKObject2& object) {
    const bool isDataset = object.type() == VKObjectType::Well;
    const auto origin = isDataset ? std::nullopt : object.db()->origin(object.key());
    return OriginFile::input(object.displayName(), origin ? &*origin : nullptr);
}

void tellExported(std::size_t count, const QString& folderOrFile) {
    const QString place = QDir::toNativeSeparators(folderOrFile).toHtmlEscaped();
    MessageLoggerInterface::Information(count == 1 ? Texts::tr("A table was exported to <b>%1</b>.",
                                                               "Un tableau a été exporté vers <b>%1</b>.")
                                                         .arg(place)
                                                   : Texts::tr("%1 tables were exported to <b>%2</b>.",
                                                               "%1 tableaux ont été exportés vers <b>%2</b>.")
                                                         .arg(QString::number(count), place));
}

/// Writes it and gives what it rests on; nothing if it could not be written, which the log tells.
std::optional<gradereport::ExportOrigin> exported(const VKObject2& object, const QString& path) {
    try {
        const std::unique_ptr<VKDataModel> table = ObjectTable::of(object);
        CsvFile::write(*table, path);
        return TableOrigin::of(*table)->origin();
    } catch (const std::exception& error) { // memory may give out as well
        VKError::dispatchError(error);
        return std::nullopt;
    }
}

} // namespace

std::unique_ptr<VKDataModel> ObjectTable::of(const VKObject2& object) {
    std::unique_ptr<VKDataModel> table = contentsOf(object);
    table->setName(object.displayName(), QFileInfo(object.db()->path()).completeBaseName());
    new TableOrigin({{}, object.db()->path().toStdString(), std::nullopt, {inputOf(object)}}, table.get());
    return table;
}

void ObjectTable::exportCsv(const QList<const VKObject2*>& objects, const QString& folderOrFile) {
    const bool toFile = objects.size() == 1 && !QFileInfo(folderOrFile).isDir();
    gradereport::ExportOrigin origin;
    for (const VKObject2* object : objects) {
        const QString path = toFile ? folderOrFile : freePath(QDir(folderOrFile), object->displayName());
        if (const auto one = exported(*object, path)) {
            origin.project = one->project;
            origin.inputs.push_back(one->inputs.front());
            origin.inputs.back().table = QFileInfo(path).fileName().toStdString();
        }
    }
    if (origin.inputs.empty()) {
        return;
    }
    tellExported(origin.inputs.size(), folderOrFile);
    // One file for all: as many again would bury the tables.
    OriginFile::writeBeside(toFile ? folderOrFile
                                   : freePath(QDir(folderOrFile), Texts::tr("tables", "tableaux")),
                            std::move(origin));
}

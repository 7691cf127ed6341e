#include "SourceRockCtrl.h"

#include "ApplicationInterface.h"
#include "AsciiImportWizardStrategySR.h"
#include "ImportConstants.h"
#include "ImportRockEvalVI.h"
#include "ProjectMgrInterface.h"
#include "SourceRockEditor.h"
#include "TDataEditor2Ctrl.h"
#include "TDatabase.h"
#include "VKDatabaseImport.h"
#include "VKError.h"
#include "VKImportCtrl.h"
#include "VKObject2Analysis.h"

#include <QDir>
#include <QFileInfo>

VORN_KEEP_TR(SourceRockCtrl)

namespace {

// What a reader of raw files counts instead of points.
constexpr int R00_TABLE_CODE = -1;
constexpr int NO_DATA_CODE = -9999;

// By this text the quality check of the same name knows what was measured for it.
const char* const analysisType = "Source Rock QAQC";

QString analysisFile(const VKDatabaseImport& database, const QString& name) {
    return database.rootFolder() + QDir::separator() + VKObject2Analysis::folderName() + QDir::separator() +
           name + QDir::separator() + name + ".tcm";
}

} // namespace

SourceRockCtrl::SourceRockCtrl() {
    m_moduleLabel = QStringLiteral("Source Rock"); // in every language the same: datasets bear it
}

SourceRockCtrl::~SourceRockCtrl() = default;

VornEditor* SourceRockCtrl::initEditor() {
    return new SourceRockEditor(m_moduleLabel, model());
}

AsciiImportWizardStrategy* SourceRockCtrl::getStrategy() {
    return new AsciiImportWizardStrategySR;
}

void SourceRockCtrl::retrieveDLLImport(VKImportCtrl& importCtrl, QList<VKImportInterface*>& interfaces) {
    VornCtrl::retrieveDLLImport(importCtrl, interfaces);
    VKImportInterface* const rawFiles = importCtrl.getDll(ROCK_EVAL_IMPORT_ID);
    if (rawFiles == nullptr) {
        throw VKError(tr("Error while retrieving import information",
                         "Erreur lors de la récupération des informations d'importation"));
    }
    interfaces.append(rawFiles);
}

void SourceRockCtrl::import(VKImportAnalysisInterface* importInterface, const QString& path) {
    auto* const rawFile = dynamic_cast<ImportRockEvalVI*>(importInterface);
    if (rawFile == nullptr) {
        return;
    }
    rawFile->setSource(QString(), path, QString(), nullptr);
    const int code = rawFile->dataCount();
    if (code == NO_DATA_CODE) {
        throw VKError(
            tr("No data imported from %1", "Aucune données importées depuis %1").arg(path.toHtmlEscaped()));
    }
    QString name = QFileInfo(path).fileName();
    if (code == R00_TABLE_CODE) {
        importR00(rawFile, name);
    } else {
        importS00(rawFile, name);
    }
}

void SourceRockCtrl::importR00(ImportRockEvalVI* importInterface, const QString& name) {
    if (importInterface == nullptr) {
        return;
    }
    QAbstractItemModel* const results = importInterface->resultsModel();
    if (results == nullptr) {
        // French for everybody: laboratories know this sentence and search for it.
        throw VKError(QStringLiteral("Aucune donnée R00 à importer"));
    }
    bool saved = false;
    {
        TDataEditor2Ctrl dataEditor; // commits where it ends, before the project is looked at again
        setVornParameters(results);
        saved = dataEditor.save(results, name, analysisType, DATASET_ROLE, nullptr);
    }
    if (!saved) {
        throw VKError(
            tr("Error while saving %1", "Erreur lors de la sauvegarde de %1").arg(name.toHtmlEscaped()));
    }
    ApplicationInterface::returnMe()->notifyProjectChanged(ApplicationInterface::datasetsChanged);
}

void SourceRockCtrl::importS00(ImportRockEvalVI* importInterface, QString& name) {
    if (importInterface == nullptr) {
        return;
    }
    float* const first = importInterface->firstChannel();
    float* const second = importInterface->secondChannel();
    const int count = importInterface->dataCount();
    if (count == 0 || first == nullptr) {
        throw VKError(tr("Error while retrieving S00 imported data",
                         "Erreur lors de la récupération des données S00 importées"));
    }
    saveAnalysis(name, {first, second}, count);
}

// By value, as the host's own modules hand it over.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
void SourceRockCtrl::saveAnalysis(QString& name, QList<float*> channels, int count) {
    const ProjectMgrInterface* const projects = ProjectMgrInterface::returnMe();
    VKDatabaseImport* const importDatabase = projects->importDatabase();
    TechDB::TDatabase* const project = projects->projectDatabase();
    const auto refuse = [&name] {
        throw VKError(tr("Error while saving temporary analysis %1",
                         "Erreur lors de la sauvegarde temporaire de l'analyse %1")
                          .arg(name.toHtmlEscaped()));
    };
    if (importDatabase == nullptr || project == nullptr) {
        refuse(); // no project is open
    }
    importDatabase->addNewAnalysisPath(name, false); // a name that is known already is as good
    if (!importDatabase->writeAnalysisFile(analysisFile(*importDatabase, name), channels, count, 0, 1,
                                           analysisType, nullptr)) {
        refuse();
    }
    importDatabase->analysisObjectSave(name);
    const VKObject2Analysis* const object = importDatabase->getAnalysis(name);
    bool first = true;
    bool second = true;
    int third = 0;
    // What the project does not take stays in the import database alone, and that is no failure.
    if (project->canPushObject(object, &first, &second, &third) &&
        !importDatabase->objectPush(project, object)) {
        throw VKError(
            tr("Error while saving analysis %1", "Erreur lors de la sauvegarde sur le disque de l'analyse %1")
                .arg(name.toHtmlEscaped()));
    }
    ApplicationInterface::returnMe()->notifyProjectChanged(ApplicationInterface::analysesChanged);
}

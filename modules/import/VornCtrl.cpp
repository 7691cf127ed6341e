#include "VornCtrl.h"

#include "AsciiImportWizardCtrl.h"
#include "AsciiImportWizardStrategy.h"
#include "DatasetNameDialogs.h"
#include "ImportConstants.h"
#include "MessageLoggerInterface.h"
#include "ModuleLauncherInterface.h"
#include "ProjectMgrInterface.h"
#include "RibbonInterface.h"
#include "SampleWriter.h"
#include "TDataEditor2Ctrl.h"
#include "TDatabase.h"
#include "TFileBuffer.h"
#include "TProgressBarMgr.h"
#include "TProperty.h"
#include "VKDataModelGeneric.h"
#include "VKError.h"
#include "VKImportAnalysisInterface.h"
#include "VKImportCtrl.h"
#include "VKImportDatasetInterface.h"
#include "VornEditor.h"

#include <QFileInfo>

#include <algorithm>
#include <iterator>

VORN_KEEP_TR(VornCtrl)

namespace {

// -1 if there is none.
int columnOf(const QAbstractItemModel& table, const QString& name) {
    // No more columns than there are rows: in a table that is wider than long, a name that stands further
    // to the right is not taken for the one that identifies samples.
    const int rows = table.rowCount();
    for (int column = 0; column < rows; ++column) {
        if (table.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString() == name) {
            return column;
        }
    }
    return -1;
}

} // namespace

/// What readers are asked with in one pass: no content, so that they look at the file itself.
struct VornCtrl::Probe {
    TFileBuffer buffer;
    QString text;
};

VornCtrl::VornCtrl() : VKModuleCtrl("vkVorn") {}

VornCtrl::~VornCtrl() {
    if (m_editor == nullptr) {
        return;
    }
    // fileDelete stays connected until the editor is gone: a row never disappears without its file.
    disconnect(m_editor, &VornEditor::closeRequested, this, &VornCtrl::slotEditorHasBeenClosed);
    disconnect(m_editor, &VornEditor::filesDropped, this, &VornCtrl::slotFilesDropped);
    disconnect(m_editor, &VornEditor::importAsked, this, &VornCtrl::slotImportAsked);
    RibbonInterface::returnMe()->removeModuleBar(m_editor);
    delete m_editor;
}

void VornCtrl::createEditor() {
    m_editor = initEditor();
    m_editor->setupEditor(this);
    RibbonInterface::returnMe()->addModuleBar(m_editor, true, true);
    const QMetaObject::Connection connections[] = {
        connect(m_editor, &VornEditor::closeRequested, this, &VornCtrl::slotEditorHasBeenClosed),
        connect(m_editor, &VornEditor::filesDropped, this, &VornCtrl::slotFilesDropped),
        connect(m_editor, &VornEditor::importAsked, this, &VornCtrl::slotImportAsked),
        connect(m_editor, &VornEditor::fileDelete, this, &VornCtrl::slotDeleteFileFromModel),
    };
    const auto holds = [](const QMetaObject::Connection& each) { return static_cast<bool>(each); };
    if (!std::all_of(std::begin(connections), std::end(connections), holds)) {
        MessageLoggerInterface::Debug(tr("Error connecting VornCtrl with VornEditor",
                                         "Erreur de connexion entre VornCtrl et VornEditor"));
    }
}

void VornCtrl::retrieveDLLImport(VKImportCtrl& importCtrl, QList<VKImportInterface*>& interfaces) {
    VKImportInterface* const tables = importCtrl.getDll(EXCEL_IMPORT_ID);
    if (tables == nullptr) {
        MessageLoggerInterface::Error(tr("Error while retrieving import information",
                                         "Erreur lors de la récupération des informations d'importation"));
        return;
    }
    interfaces.append(tables);
}

void VornCtrl::import(VKImportAnalysisInterface*, const QString&) {}

void VornCtrl::import(VKImportDatasetInterface* importInterface, const QString& path) {
    if (importInterface == nullptr) {
        return;
    }
    const QString fileName = QFileInfo(path).fileName();
    importInterface->setSource(QString(), fileName, QString(), new TFileBuffer(path, true));
    QAbstractItemModel* const table = importInterface->importedModel();
    if (table == nullptr) {
        throw VKError(tr("Error while retrieving imported data",
                         "Erreur lors de la récupération des données importées"));
    }
    AsciiImportWizardCtrl wizard; // owns the model that it makes
    wizard.initExec(table, getStrategy());
    QAbstractItemModel* const model = wizard.createModel();
    if (model == nullptr) {
        return;
    }
    moveIDColumnAtStart(model);
    setFirstColAsHeader(model);
    saveDatasets(model, fileName);
    specificProcess(model);
}

void VornCtrl::specificProcess(const QAbstractItemModel*) {}

VornEditor* VornCtrl::editor() const {
    return m_editor;
}

QHash<QString, int>& VornCtrl::model() {
    return m_model;
}

void VornCtrl::importFiles() {
    if (m_model.isEmpty()) {
        MessageLoggerInterface::Information(tr("No files to import", "Aucun fichier à importer"));
        return;
    }
    VKImportCtrl importCtrl(false); // deletes the readers when something raised ends the pass
    QList<VKImportInterface*> interfaces;
    retrieveDLLImport(importCtrl, interfaces);
    Probe probe;
    bool handled = false;
    const QStringList paths = m_model.keys(); // the pass changes values of the list
    for (const QString& path : paths) {
        handled = offer(path, interfaces, probe) || handled;
    }
    // Only if nothing at all was handled: a file that no reader takes keeps its place among others.
    if (!handled) {
        MessageLoggerInterface::Error(tr(
            "Impossible to import file(s) dropped. Check that every file type is 'xls' or 'xlsx' and that "
            "file exists",
            "Impossible d'importer le(s) fichier(s) déposé(s). Vérifiez si les fichiers sont du type '.xls' "
            "ou '.xlsx' et qu'ils n'ont pas été suprimés"));
    }
    while (!interfaces.isEmpty()) {
        delete interfaces.takeFirst();
    }
}

/// Whether the file is done with or was taken by a reader, be it in vain.
bool VornCtrl::offer(const QString& path, const QList<VKImportInterface*>& interfaces, Probe& probe) {
    if (m_model.value(path) == ImportDone) {
        MessageLoggerInterface::Information(
            tr("File <b>%1</b> was already imported", "Le fichier <b>%1</b> a déjà été importé")
                .arg(path.toHtmlEscaped()));
        return true;
    }
    bool handled = false;
    for (VKImportInterface* const importInterface : interfaces) {
        importInterface->prepareForProbe(true);
        if (!importInterface->acceptsFile(probe.buffer, path, probe.text)) {
            continue;
        }
        handled = true;
        if (importThrough(importInterface, path)) {
            break;
        }
        // Another reader may still be able to make something of the file.
    }
    return handled;
}

bool VornCtrl::importThrough(VKImportInterface* importInterface, const QString& path) {
    try {
        initImport(importInterface, path);
        updateFileStatus(path, ImportDone);
        return true;
    } catch (const VKError& error) {
        VKError::dispatchError(error);
        updateFileStatus(path, ImportFailed);
        return false;
    }
}

void VornCtrl::initImport(VKImportInterface* importInterface, const QString& path) {
    if (auto* const tables = dynamic_cast<VKImportDatasetInterface*>(importInterface)) {
        import(tables, path);
    } else if (auto* const analyses = dynamic_cast<VKImportAnalysisInterface*>(importInterface)) {
        import(analyses, path);
    } else {
        throw VKError(tr("Import canceled", "Import abandonné"));
    }
}

void VornCtrl::moveIDColumnAtStart(QAbstractItemModel* model) {
    if (model == nullptr) {
        return;
    }
    const QString idName = model->headerData(0, Qt::Vertical, ID_NAME_ROLE).toString();
    if (idName.isEmpty()) {
        return;
    }
    const int found = columnOf(*model, idName);
    if (found < 0) {
        MessageLoggerInterface::Debug(tr("Error while seeking for SampleID column",
                                         "Erreur lors de la recherche de la colonne SampleID"));
        return;
    }
    if (found == 0) {
        return;
    }
    // The first cell as parent is how the host's tables are asked for a column in front.
    if (!model->insertColumn(0, model->index(0, 0))) {
        throw VKError(
            tr("An error occurred while setting identifying column in the dataset",
               "Erreur lors de la préparation de la colonne identifiante dans le tableau de données"));
    }
    model->setHeaderData(0, Qt::Horizontal, idName, Qt::EditRole);
    const int rows = model->rowCount();
    for (int row = 0; row < rows; ++row) {
        const QVariant id = model->data(model->index(row, found + 1), Qt::DisplayRole);
        model->setData(model->index(row, 0), id, Qt::EditRole);
    }
    model->removeColumn(found + 1);
}

void VornCtrl::setFirstColAsHeader(QAbstractItemModel* model) {
    const int rows = model->rowCount();
    for (int row = 0; row < rows; ++row) {
        const QVariant id = model->data(model->index(row, 0), Qt::DisplayRole);
        if (!id.toString().isEmpty()) {
            model->setHeaderData(row, Qt::Vertical, id, Qt::EditRole);
        }
    }
}

QSharedPointer<VKDataModelGeneric> VornCtrl::createTemplateDataset(QAbstractItemModel* model) {
    auto emptySample = QSharedPointer<VKDataModelGeneric>::create();
    const int columns = model->columnCount();
    emptySample->createEmpty(1, columns);
    for (int column = 0; column < columns; ++column) {
        const QVariant name = model->headerData(column, Qt::Horizontal, Qt::DisplayRole);
        emptySample->setHeaderData(column, Qt::Vertical, name, DATASET_ROLE);
    }
    const auto* const table = dynamic_cast<const VKDataModelGeneric*>(model);
    if (table == nullptr) {
        throw VKError(tr("An error occurred while configuring the dataset (Vorn parameters)",
                         "Une erreur est survenue lors de la configuration du dataset (Vorn parameters)"));
    }
    emptySample->setProperties(table->properties());
    return emptySample;
}

void VornCtrl::saveDatasets(QAbstractItemModel* model, const QString& fileName) {
    if (model == nullptr) {
        throw VKError(tr("Error while retrieving imported data",
                         "Erreur lors de la récupération des données importées"));
    }
    setVornParameters(model);
    const QSharedPointer<VKDataModelGeneric> emptySample = createTemplateDataset(model);
    TDataEditor2Ctrl dataEditor; // commits where it ends; a disk that doesn't take it fails the file too
    const int rows = model->rowCount();
    TProgressBarMgr progress(
        rows + 1, tr("Creating datasets : %1", "Création des ensembles de données : %1").arg(fileName), true);
    // Settled before any sample is written: a refusal leaves the project as it was.
    const QString finalName = getFinalWellName(QStringLiteral("%1-%2").arg(m_moduleLabel, fileName));
    const int samples = SampleWriter(*model, *emptySample, dataEditor, finalName).saveAll(progress);
    // Rows without an identifier are left out from the second one behind the samples on. A table refuses a
    // range that reaches beyond it, so what has no such rows stays whole.
    model->removeRows(samples + 2, rows - samples - 1);
    if (auto* const table = dynamic_cast<VKDataModelGeneric*>(model)) {
        table->transpose();
    }
    if (!dataEditor.save(model, finalName, m_moduleLabel, DATASET_ROLE, nullptr)) {
        throw VKError(tr("An error occurred while saving dataset generated from file: <b>%1</b>",
                         "Une erreur est survenue lors de la sauvegarde de l'ensemble de données issues du "
                         "fichier : <b>%1</b>")
                          .arg(fileName.toHtmlEscaped()));
    }
    MessageLoggerInterface::Information(tr("Dataset <b>%1</b> was successfully imported",
                                           "L'ensemble de données <b>%1</b> a été correctement importé")
                                            .arg(finalName.toHtmlEscaped()));
    progress.setProgress(rows + 1, true);
}

QString VornCtrl::getFinalWellName(const QString& name) {
    const ProjectMgrInterface* const projects = ProjectMgrInterface::returnMe();
    const TechDB::TDatabase* const project = projects == nullptr ? nullptr : projects->projectDatabase();
    if (project == nullptr) {
        return name;
    }
    QString wanted = name;
    while (project->getWell(wanted) != nullptr) {
        switch (DatasetNameDialogs::askWhatToDo(wanted)) {
        case DatasetNameDialogs::Choice::Overwrite:
            return wanted; // what is there gives way when the first sample is saved
        case DatasetNameDialogs::Choice::Rename:
            wanted = DatasetNameDialogs::askNewName(wanted);
            break;
        case DatasetNameDialogs::Choice::Cancel:
            throw VKError(tr("The import of the dataset <b>%1</b> has been canceled by the user",
                             "L'import de l'ensemble de données <b>%1</b> a été annulé par l'utilisateur")
                              .arg(wanted.toHtmlEscaped()));
        }
    }
    return wanted;
}

void VornCtrl::slotEditorHasBeenClosed() {
    ModuleLauncherInterface::returnMe()->closeModule(this);
}

void VornCtrl::slotFilesDropped(const QStringList& droppedFiles) {
    for (const QString& path : droppedFiles) {
        if (!path.isEmpty() && !m_model.contains(path)) {
            m_model.insert(path, ImportPending);
        }
    }
    refreshEditor();
}

void VornCtrl::slotImportAsked() {
    importFiles();
}

void VornCtrl::slotDeleteFileFromModel(const QString& fileName) {
    if (m_model.isEmpty()) {
        return;
    }
    m_model.remove(fileName); // the editor has taken the row away by itself
}

void VornCtrl::setVornParameters(QAbstractItemModel* templateDataset) {
    if (auto* const table = dynamic_cast<VKDataModelGeneric*>(templateDataset)) {
        table->setProperties({TProperty("Vorn_parameter", "true", QString(), QString())});
    }
}

void VornCtrl::updateFileStatus(const QString& fileName, importStatus code) {
    const auto file = m_model.find(fileName);
    if (file != m_model.end()) {
        *file = code;
    }
    refreshEditor();
}

void VornCtrl::refreshEditor() {
    if (m_editor != nullptr) {
        m_editor->refreshFileTree();
    }
}

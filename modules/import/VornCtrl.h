#pragma once

#include "VKModuleCtrl.h"
#include "VornExport.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QSharedPointer>
#include <QString>
#include <QStringList>

class AsciiImportWizardStrategy;
class QAbstractItemModel;
class VKDataModelGeneric;
class VKImportAnalysisInterface;
class VKImportCtrl;
class VKImportDatasetInterface;
class VKImportInterface;
class VornEditor;

/// The spine of every import module: keeps the list of dropped files, offers each to the readers of one
/// pass, and stores a table as one dataset: a sample per row, and the whole table as one more.
///
/// What a file's import raises as VKError is reported and marks the file failed; the pass goes on. Anything
/// else raised passes through. Nothing is taken back: samples saved before a failure stay.
class VORN_EXPORT VornCtrl : public QObject, public VKModuleCtrl {
    Q_OBJECT

public:
    /// Where a file of the list stands; the list holds it as int.
    enum importStatus {
        ImportPending = 0, // dropped and not imported yet
        ImportDone = 1,    // final while the file is listed
        ImportFailed = 2,
    };

    VornCtrl();
    ~VornCtrl() override;

    /// Makes the editor and enters the ribbon. Once, after the construction.
    void createEditor();

protected:
    /// A new editor of the module, which passes to the controller.
    virtual VornEditor* initEditor() = 0;

    /// Fills the list with the readers to try, in this order. Those of the list are deleted with the pass.
    virtual void retrieveDLLImport(VKImportCtrl& importCtrl, QList<VKImportInterface*>& interfaces);

    /// Imports a file of curves; nothing here.
    virtual void import(VKImportAnalysisInterface* importInterface, const QString& path);

    /// Imports a table through the wizard. A wizard without a result is no failure: nothing is stored.
    virtual void import(VKImportDatasetInterface* importInterface, const QString& path);

    /// A new strategy, which passes to the wizard: which columns there are and which identifies samples.
    virtual AsciiImportWizardStrategy* getStrategy() = 0;

    /// What a module does with the stored table, one row per column of the file; nothing here.
    virtual void specificProcess(const QAbstractItemModel* model);

    /// Null before `createEditor`.
    VornEditor* editor() const;

    /// The file list: path as it was dropped, and `importStatus`.
    QHash<QString, int>& model();

    /// One pass over the files, in the order of the list. Tells the user when no reader took any of them.
    void importFiles();

    /// Moves the column that the wizard calls the identifying one to the front.
    void moveIDColumnAtStart(QAbstractItemModel* model);

    /// Names each row after its cell in the first column; an empty one leaves the row's header.
    void setFirstColAsHeader(QAbstractItemModel* model);

    /// An empty sample: a row per column of `model`, under its name, and the properties of `model`, which
    /// has to be one of the host's tables.
    QSharedPointer<VKDataModelGeneric> createTemplateDataset(QAbstractItemModel* model);

    /// Stores the table; afterwards it is turned on its side. Raises when the user cancels and when the
    /// table as a whole can't be saved; a sample that can't be is left out with a message.
    void saveDatasets(QAbstractItemModel* model, const QString& fileName);

protected slots:
    void slotEditorHasBeenClosed();
    void slotFilesDropped(const QStringList& droppedFiles);
    void slotImportAsked();
    void slotDeleteFileFromModel(const QString& fileName);

    /// Marks one of the host's tables as imported here; any other model is left alone.
    void setVornParameters(QAbstractItemModel* templateDataset);

    /// Does not list an unknown file.
    void updateFileStatus(const QString& fileName, importStatus code);

private:
    struct Probe;

    /// The name under which the user wants the dataset; raises if he cancels.
    QString getFinalWellName(const QString& name);
    void initImport(VKImportInterface* importInterface, const QString& path);

    bool offer(const QString& path, const QList<VKImportInterface*>& interfaces, Probe& probe);
    bool importThrough(VKImportInterface* importInterface, const QString& path);
    void refreshEditor();

    VornEditor* m_editor = nullptr;
    QHash<QString, int> m_model;

protected:
    /// Titles the editor, begins the names of datasets and names the sample that holds the whole table.
    QString m_moduleLabel;
};

#pragma once

#include "VKImportDatasetInterface.h"

#include <QCoreApplication>
#include <QString>

#include <memory>

class WorkbookModel;

/// The reader of two-column text as an import pass sees it: takes files whose names end in .txt, and gives
/// the table of one as a workbook of one sheet, which the import wizard knows how to show.
class ImportTextPairs : public VKImportDatasetInterface {
    Q_DECLARE_TR_FUNCTIONS(ImportTextPairs)

public:
    ImportTextPairs();
    ~ImportTextPairs() override;

    void prepareForProbe(bool probe) override;
    bool acceptsFile(TFileBuffer& buffer, const QString& path, QString& text) override;
    void setSource(const QString& folder, const QString& name, const QString& text,
                   TFileBuffer* buffer) override;

    /// What was left out goes to the log as warnings, each with its line.
    QAbstractItemModel* importedModel() override;

private:
    void forget();

    QString m_name;
    std::unique_ptr<TFileBuffer> m_buffer;
    std::unique_ptr<WorkbookModel> m_model;
};

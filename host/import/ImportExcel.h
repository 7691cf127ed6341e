#pragma once

#include "VKImportDatasetInterface.h"

#include <QCoreApplication>
#include <QString>

#include <memory>

class WorkbookModel;

/// Reads Excel tables: files with one of their names (.xls, .xlsx, .xlsm) and the content of one.
class ImportExcel : public VKImportDatasetInterface {
    Q_DECLARE_TR_FUNCTIONS(ImportExcel)

public:
    ImportExcel();
    ~ImportExcel() override;

    void prepareForProbe(bool probe) override;
    bool acceptsFile(TFileBuffer& buffer, const QString& path, QString& text) override;
    void setSource(const QString& folder, const QString& name, const QString& text,
                   TFileBuffer* buffer) override;

    /// A `WorkbookModel`. What was read with a guess or left out goes to the log as warnings.
    QAbstractItemModel* importedModel() override;

private:
    /// Why the file is none of this reader's; empty if it is one.
    static QString refusalOf(const TFileBuffer& buffer, const QString& path);
    static QString refusalOf(const QByteArray& beginning);
    void forget();

    QString m_name;
    std::unique_ptr<TFileBuffer> m_buffer;
    std::unique_ptr<WorkbookModel> m_model;
};

#pragma once

#include "TDataModel.h"
#include "Workbook.h"

/// A spreadsheet file as the import wizard gets it: the model of its proposed sheet, the first that is shown
/// and looks like a table, with the whole book behind it. Read only; headers are Excel's (A, B…; 1, 2…).
class WorkbookModel : public TDataModel {
    Q_OBJECT

public:
    WorkbookModel(Workbook::Book book, const QString& fileName);
    ~WorkbookModel() override;

    const Workbook::Book& book() const { return m_book; }
    const QString& fileName() const { return m_fileName; }
    int proposedSheet() const { return m_sheet; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

    /// A, B, … Z, AA, …
    static QString columnLetters(int column);

private:
    const Workbook::Sheet& sheet() const { return m_book.sheets[static_cast<std::size_t>(m_sheet)]; }

    Workbook::Book m_book;
    QString m_fileName;
    int m_sheet;
};

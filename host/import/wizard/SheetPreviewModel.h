#pragma once

#include "TDataModel.h"

class ImportDraft;

/// A sheet as it will be imported: header and units are marked, what is left out is quiet, numbers stand to
/// the right. Cells are computed when they are shown. Refers to the draft.
class SheetPreviewModel : public TDataModel {
    Q_OBJECT

public:
    explicit SheetPreviewModel(const ImportDraft& draft);

    /// Tells that another sheet, or other rows of it, are shown.
    void reset();
    /// Tells that the columns' targets changed.
    void refresh();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    /// The spreadsheet's letter with the imported name below; the spreadsheet's row numbers.
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    QString text(int row, int column) const;
    bool isHeader(int row) const;
    bool isImported(int row, int column) const;

    const ImportDraft& m_draft;
};

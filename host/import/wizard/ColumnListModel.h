#pragma once

#include "TDataModel.h"

class ImportDraft;

/// The columns of a draft, one a row: what the file says of them, and what becomes of them, which is edited.
/// Refers to the draft.
class ColumnListModel : public TDataModel {
    Q_OBJECT

public:
    enum Column { Letter, Header, Unit, Target, DecimalComma, Content, ColumnEnd };

    explicit ColumnListModel(ImportDraft& draft);

    /// Tells that the draft has other columns.
    void reset();
    /// Tells that targets or the identifying column changed.
    void refresh();

    /// What a column can become, in the order of the targets; the identifying one can't be left out.
    QStringList choices(int row) const;
    bool isIdentifier(int row) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    /// Under Qt::EditRole of `Target` the target's number.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

signals:
    /// A person changed the draft through this model.
    void edited();

private:
    QString text(int row, int column) const;
    QString targetText(int row) const;
    QString contentText(int row) const;
    bool hasMark(int row) const;

    ImportDraft& m_draft;
};

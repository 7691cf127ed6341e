#pragma once

#include <QAbstractItemModel>

/// A flat table: every cell is a child of the invisible root, and no cell has children.
class TDataModel : public QAbstractItemModel {
    Q_OBJECT

public:
    explicit TDataModel(QObject* parent = nullptr);
    ~TDataModel() override;

    /// Invalid for a place outside the table, and for any valid parent.
    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;

    using QObject::parent;
    QModelIndex parent(const QModelIndex& child) const override;
};

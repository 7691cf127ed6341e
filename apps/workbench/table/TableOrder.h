#pragma once

#include <QAbstractProxyModel>

#include <vector>

/// A flat table's rows in the order of one column's values (`SortKey`), the empty ones last either way, rows
/// that are equal in the model's order. The row headers go with their rows; a row without one is called by
/// its number in the model.
///
/// The sorted column is read once for a sort, and the order stays until the next `sort`, for cells may change
/// without a signal. A change of the model's shape gives the model's order back. A cell whose reading fails
/// is shown empty; the first such failure is reported, and again only after a change of the shape. Under
/// VKDataModel::datasetRole, by which tables are copied and exported, the failure is thrown.
class TableOrder : public QAbstractProxyModel {
    Q_OBJECT

public:
    explicit TableOrder(QAbstractItemModel& source);

    /// A column that isn't there stands for the model's order.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;
    /// Sorts as before, by the values of this moment.
    void sortAgain();

    /// -1 for the model's order.
    int sortedColumn() const { return m_column; }
    Qt::SortOrder sortOrder() const { return m_direction; }

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    using QObject::parent;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QModelIndex mapToSource(const QModelIndex& index) const override;
    QModelIndex mapFromSource(const QModelIndex& index) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    using Rows = std::vector<int>;

    void followSource();
    void giveUpOrder();
    Rows sortedRows() const;
    int sourceRow(int row) const;
    int shownRow(int row) const;
    void passChange(const QModelIndex& first, const QModelIndex& last, const QVector<int>& roles);

    int m_column = -1;
    Qt::SortOrder m_direction = Qt::AscendingOrder;
    Rows m_rows;   // the model's row for each shown one; empty for the model's order
    Rows m_places; // the reverse
    mutable bool m_failed = false;
};

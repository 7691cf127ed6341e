#pragma once

#include <QTableView>

class TableOrder;

/// The cells of a table's page. A click on a column's header sorts by it: ascending, descending, and back to
/// the model's order; the context menu (menu key, Shift+F10) does so for the current column, below the
/// commands added to the grid. An empty table says so.
class TableGrid : public QTableView {
    Q_OBJECT

public:
    explicit TableGrid(TableOrder& order, QWidget* parent);

    /// Sorts by the column, or by none if it is negative, and shows that in the header.
    void sortBy(int column, Qt::SortOrder order);

    /// The selected cells; the current one if none is selected.
    QItemSelection chosenCells() const;

signals:
    /// Whether there are chosen cells.
    void cellsChosen(bool any);

protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

private:
    void takeClick(int column);
    void showOrder();
    void fitColumns();

    TableOrder& m_order;
};

#include "TableGrid.h"

#include "CellDelegate.h"
#include "TEmptyHint.h"
#include "TableOrder.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMenu>

#include <algorithm>

namespace {

// Fitting looks at no more than these: a table may have millions of cells.
constexpr int rowsLookedAt = 50;
constexpr int columnsFitted = 100;

constexpr int narrowest = 72;
constexpr int widest = 320;

} // namespace

TableGrid::TableGrid(TableOrder& order, QWidget* parent) : QTableView(parent), m_order(order) {
    setItemDelegate(new CellDelegate(this));
    setEditTriggers(NoEditTriggers);
    setFrameShape(NoFrame);
    setHorizontalScrollMode(ScrollPerPixel);
    setWordWrap(false);
    setTabKeyNavigation(false); // the tab key leaves the table
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(verticalHeader()->minimumSectionSize());
    QHeaderView* const header = horizontalHeader();
    header->setResizeContentsPrecision(rowsLookedAt);
    header->setHighlightSections(false);
    header->setSortIndicatorShown(true);
    header->setSectionsClickable(true);
    disconnect(header, SIGNAL(sectionPressed(int)), this, SLOT(selectColumn(int)));
    disconnect(header, SIGNAL(sectionEntered(int)), this, SLOT(_q_selectColumn(int)));
    connect(header, &QHeaderView::sectionClicked, this, &TableGrid::takeClick);
    setModel(&m_order);
    connect(&m_order, &QAbstractItemModel::modelReset, this, &TableGrid::fitColumns);
    fitColumns();
}

void TableGrid::takeClick(int column) {
    const bool again = column == m_order.sortedColumn();
    if (again && m_order.sortOrder() == Qt::DescendingOrder) {
        sortBy(-1, Qt::AscendingOrder);
    } else {
        sortBy(column, again ? Qt::DescendingOrder : Qt::AscendingOrder);
    }
}

void TableGrid::sortBy(int column, Qt::SortOrder order) {
    m_order.sort(column, order);
    showOrder();
}

void TableGrid::showOrder() {
    horizontalHeader()->setSortIndicator(m_order.sortedColumn(), m_order.sortOrder());
}

void TableGrid::fitColumns() {
    showOrder();
    const int columns = std::min(m_order.columnCount(), columnsFitted);
    for (int column = 0; column < columns; ++column) {
        resizeColumnToContents(column);
        setColumnWidth(column, std::clamp(columnWidth(column), narrowest, widest));
    }
}

void TableGrid::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QTableView::selectionChanged(selected, deselected);
    emit cellsChosen(!chosenCells().isEmpty());
}

void TableGrid::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    emit cellsChosen(!chosenCells().isEmpty());
}

QItemSelection TableGrid::chosenCells() const {
    const QItemSelection selected = selectionModel()->selection();
    return selected.isEmpty() && currentIndex().isValid() ? QItemSelection(currentIndex(), currentIndex())
                                                          : selected;
}

void TableGrid::contextMenuEvent(QContextMenuEvent* event) {
    QMenu menu(this);
    menu.addActions(actions());
    QAction* const all = menu.addAction(tr("Select all", "Tout sélectionner"), this, &TableGrid::selectAll);
    all->setShortcut(QKeySequence::SelectAll);
    const bool mouse = event->reason() == QContextMenuEvent::Mouse;
    const int column = mouse ? columnAt(event->pos().x()) : currentIndex().column();
    if (column >= 0) {
        menu.addAction(tr("Select column", "Sélectionner la colonne"), this,
                       [this, column] { selectColumn(column); });
        menu.addSeparator();
        menu.addAction(tr("Sort ascending", "Tri croissant"), this,
                       [this, column] { sortBy(column, Qt::AscendingOrder); });
        menu.addAction(tr("Sort descending", "Tri décroissant"), this,
                       [this, column] { sortBy(column, Qt::DescendingOrder); });
    }
    if (m_order.sortedColumn() >= 0) {
        menu.addAction(tr("Original order", "Ordre d'origine"), this,
                       [this] { sortBy(-1, Qt::AscendingOrder); });
    }
    const QPoint place = mouse ? event->pos() : visualRect(currentIndex()).bottomLeft();
    menu.exec(viewport()->mapToGlobal(place));
}

void TableGrid::paintEvent(QPaintEvent* event) {
    QTableView::paintEvent(event);
    if (m_order.rowCount() > 0) {
        return;
    }
    TEmptyHint::paint(
        viewport(),
        tr("No rows yet.\n\nA table of results fills as analyses are dropped on the quality check.",
           "Aucune ligne pour l'instant.\n\nUn tableau de résultats se remplit quand des analyses sont "
           "déposées sur le contrôle qualité."));
}

#include "TableOrder.h"

#include "NaturalOrder.h"
#include "SortKey.h"
#include "VKDataModel.h"
#include "VKError.h"

#include <algorithm>
#include <numeric>

namespace {

std::vector<int> reversed(const std::vector<int>& rows) {
    std::vector<int> places(rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        places[static_cast<std::size_t>(rows[i])] = static_cast<int>(i);
    }
    return places;
}

} // namespace

TableOrder::TableOrder(QAbstractItemModel& source) {
    setSourceModel(&source);
    followSource();
}

void TableOrder::followSource() {
    const QAbstractItemModel* const source = sourceModel();
    const auto begin = [this] { beginResetModel(); };
    const auto end = [this] {
        giveUpOrder();
        endResetModel();
    };
    connect(source, &QAbstractItemModel::modelAboutToBeReset, this, begin);
    connect(source, &QAbstractItemModel::rowsAboutToBeInserted, this, begin);
    connect(source, &QAbstractItemModel::rowsAboutToBeRemoved, this, begin);
    connect(source, &QAbstractItemModel::rowsAboutToBeMoved, this, begin);
    connect(source, &QAbstractItemModel::columnsAboutToBeInserted, this, begin);
    connect(source, &QAbstractItemModel::columnsAboutToBeRemoved, this, begin);
    connect(source, &QAbstractItemModel::columnsAboutToBeMoved, this, begin);
    connect(source, &QAbstractItemModel::layoutAboutToBeChanged, this, begin);
    connect(source, &QAbstractItemModel::modelReset, this, end);
    connect(source, &QAbstractItemModel::rowsInserted, this, end);
    connect(source, &QAbstractItemModel::rowsRemoved, this, end);
    connect(source, &QAbstractItemModel::rowsMoved, this, end);
    connect(source, &QAbstractItemModel::columnsInserted, this, end);
    connect(source, &QAbstractItemModel::columnsRemoved, this, end);
    connect(source, &QAbstractItemModel::columnsMoved, this, end);
    connect(source, &QAbstractItemModel::layoutChanged, this, end);
    connect(source, &QAbstractItemModel::dataChanged, this, &TableOrder::passChange);
    connect(source, &QAbstractItemModel::headerDataChanged, this,
            [this](Qt::Orientation orientation, int first, int last) {
                const bool scattered = orientation == Qt::Vertical && !m_rows.empty();
                emit headerDataChanged(orientation, scattered ? 0 : first, scattered ? rowCount() - 1 : last);
            });
}

void TableOrder::giveUpOrder() {
    m_column = -1;
    m_rows.clear();
    m_places.clear();
    m_failed = false;
}

void TableOrder::passChange(const QModelIndex& first, const QModelIndex& last, const QVector<int>& roles) {
    if (m_rows.empty()) {
        emit dataChanged(mapFromSource(first), mapFromSource(last), roles);
    } else {
        emit dataChanged(index(0, first.column()), index(rowCount() - 1, last.column()), roles);
    }
}

void TableOrder::sort(int column, Qt::SortOrder order) {
    m_column = column >= 0 && column < columnCount() ? column : -1;
    m_direction = order;
    Rows rows = m_column < 0 ? Rows() : sortedRows();
    if (rows == m_rows) {
        return;
    }
    emit layoutAboutToBeChanged({}, VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    QModelIndexList sources;
    for (const QModelIndex& cell : before) {
        sources.append(mapToSource(cell));
    }
    m_rows.swap(rows);
    m_places = reversed(m_rows);
    QModelIndexList after;
    for (const QModelIndex& cell : qAsConst(sources)) {
        after.append(mapFromSource(cell));
    }
    changePersistentIndexList(before, after);
    emit layoutChanged({}, VerticalSortHint);
}

void TableOrder::sortAgain() {
    sort(m_column, m_direction);
}

TableOrder::Rows TableOrder::sortedRows() const {
    const QCollator collator = NaturalOrder::collator();
    const int count = sourceModel()->rowCount();
    std::vector<SortKey> keys;
    keys.reserve(static_cast<std::size_t>(count));
    for (int place = 0; place < count; ++place) {
        keys.emplace_back(data(index(shownRow(place), m_column)), collator);
    }
    const bool descending = m_direction == Qt::DescendingOrder;
    Rows rows(static_cast<std::size_t>(count));
    std::iota(rows.begin(), rows.end(), 0);
    std::stable_sort(rows.begin(), rows.end(), [&](int a, int b) {
        const SortKey& left = keys[static_cast<std::size_t>(a)];
        const SortKey& right = keys[static_cast<std::size_t>(b)];
        const bool turned = descending && !left.isEmpty() && !right.isEmpty();
        return turned ? right < left : left < right;
    });
    return rows;
}

int TableOrder::sourceRow(int row) const {
    return m_rows.empty() ? row : m_rows[static_cast<std::size_t>(row)];
}

int TableOrder::shownRow(int row) const {
    return m_places.empty() ? row : m_places[static_cast<std::size_t>(row)];
}

QModelIndex TableOrder::index(int row, int column, const QModelIndex& parent) const {
    return hasIndex(row, column, parent) ? createIndex(row, column) : QModelIndex();
}

QModelIndex TableOrder::parent(const QModelIndex&) const {
    return {};
}

int TableOrder::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : sourceModel()->rowCount();
}

int TableOrder::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : sourceModel()->columnCount();
}

QModelIndex TableOrder::mapToSource(const QModelIndex& index) const {
    return index.isValid() ? sourceModel()->index(sourceRow(index.row()), index.column()) : QModelIndex();
}

QModelIndex TableOrder::mapFromSource(const QModelIndex& index) const {
    return index.isValid() ? createIndex(shownRow(index.row()), index.column()) : QModelIndex();
}

QVariant TableOrder::data(const QModelIndex& index, int role) const {
    if (role == VKDataModel::datasetRole) {
        return sourceModel()->data(mapToSource(index), role);
    }
    // A view paints in the midst of Qt's own code, which no exception may pass.
    try {
        return sourceModel()->data(mapToSource(index), role);
    } catch (const std::exception& error) {
        if (!m_failed) {
            m_failed = true;
            VKError::dispatchError(error);
        }
        return {};
    }
}

QVariant TableOrder::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Horizontal) {
        return sourceModel()->headerData(section, orientation, role);
    }
    if (section < 0 || section >= rowCount()) {
        return {};
    }
    const int row = sourceRow(section);
    const QVariant header = sourceModel()->headerData(row, orientation, role);
    return header.isValid() || role != Qt::DisplayRole ? header : QVariant(row + 1);
}

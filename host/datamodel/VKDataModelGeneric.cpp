#include "VKDataModelGeneric.h"

#include "VKError.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace {

int storedRole(int role) {
    return VKDataModel::isValueRole(role) ? VKDataModel::datasetRole : role;
}

bool inside(int first, int count, int size) {
    return first >= 0 && count > 0 && first <= size - count;
}

// `header` with the sections from `first` on moved by `count`, and those that a negative count covers gone.
template <class Header>
Header shifted(const Header& header, int first, int count) {
    Header result;
    for (auto entry = header.begin(); entry != header.end(); ++entry) {
        const qint64 section = entry.key() < first ? entry.key() : qint64{entry.key()} + count;
        const bool covered = entry.key() >= first && section < first;
        if (!covered && section <= std::numeric_limits<int>::max()) {
            result.insert(static_cast<int>(section), entry.value());
        }
    }
    return result;
}

} // namespace

VKDataModelGeneric::VKDataModelGeneric() = default;

VKDataModelGeneric::VKDataModelGeneric(const VKDataModelGeneric* other) {
    if (other == nullptr) {
        return;
    }
    setName(other->name(), other->project());
    setProperties(other->properties());
    m_rowHeader = other->m_rowHeader;
    m_columnHeader = other->m_columnHeader;
    m_rows = other->rowCount();
    m_columns = other->columnCount();
    m_cells.reserve(place(m_rows, 0));
    for (int row = 0; row < m_rows; ++row) {
        for (int column = 0; column < m_columns; ++column) {
            m_cells.push_back(
                other->data(other->index(row, column), datasetRole)); // it may compute its cells
        }
    }
}

VKDataModelGeneric::~VKDataModelGeneric() = default;

std::size_t VKDataModelGeneric::place(int row, int column) const {
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(m_columns) +
           static_cast<std::size_t>(column);
}

// Not checkIndex, which warns on the log: views ask for invalid indexes all the time.
bool VKDataModelGeneric::contains(const QModelIndex& index) const {
    return index.model() == this && index.row() < m_rows && index.column() < m_columns;
}

bool VKDataModelGeneric::fits(qint64 columns, qint64 rows) const {
    constexpr qint64 most = std::numeric_limits<int>::max();
    return columns <= most && rows <= most && columns * rows <= maxCells;
}

void VKDataModelGeneric::createEmpty(int columns, int rows) {
    columns = std::max(columns, 0);
    rows = std::max(rows, 0);
    if (!fits(columns, rows)) {
        throw VKError(tr("A table of %1 columns and %2 rows is too large; split the data",
                         "Un tableau de %1 colonnes et %2 lignes est trop grand ; divisez les données")
                          .arg(columns)
                          .arg(rows));
    }
    Cells cells(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows));
    beginResetModel();
    m_columns = columns;
    m_rows = rows;
    m_cells.swap(cells);
    endResetModel();
}

void VKDataModelGeneric::transpose() {
    Cells turned(m_cells.size());
    beginResetModel();
    for (int row = 0; row < m_rows; ++row) {
        for (int column = 0; column < m_columns; ++column) {
            const std::size_t target = static_cast<std::size_t>(column) * static_cast<std::size_t>(m_rows) +
                                       static_cast<std::size_t>(row);
            turned[target] = std::move(m_cells[place(row, column)]);
        }
    }
    m_cells.swap(turned);
    std::swap(m_rows, m_columns);
    m_rowHeader.swap(m_columnHeader);
    endResetModel();
}

int VKDataModelGeneric::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_rows;
}

int VKDataModelGeneric::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_columns;
}

QVariant VKDataModelGeneric::data(const QModelIndex& index, int role) const {
    if (!isValueRole(role) || !contains(index)) {
        return {};
    }
    return m_cells[place(index.row(), index.column())];
}

bool VKDataModelGeneric::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!isValueRole(role) || !contains(index)) {
        return false;
    }
    m_cells[place(index.row(), index.column())] = value;
    emit dataChanged(index, index, {Qt::DisplayRole, Qt::EditRole, datasetRole});
    return true;
}

QVariant VKDataModelGeneric::headerData(int section, Qt::Orientation orientation, int role) const {
    return header(orientation).value(section).value(storedRole(role));
}

bool VKDataModelGeneric::setHeaderData(int section, Qt::Orientation orientation, const QVariant& value,
                                       int role) {
    if (section < 0) {
        return false;
    }
    header(orientation)[section].insert(storedRole(role), value);
    if (section < (orientation == Qt::Horizontal ? m_columns : m_rows)) { // views know the existing ones only
        emit headerDataChanged(orientation, section, section);
    }
    return true;
}

Qt::ItemFlags VKDataModelGeneric::flags(const QModelIndex& index) const {
    if (!contains(index)) {
        return Qt::NoItemFlags;
    }
    return Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsEditable | Qt::ItemNeverHasChildren;
}

bool VKDataModelGeneric::insertRows(int row, int count, const QModelIndex& parent) {
    if (parent.isValid() || row < 0 || row > m_rows || count < 1 ||
        !fits(m_columns, qint64{m_rows} + count)) {
        return false;
    }
    const auto target = m_cells.begin() + static_cast<Cells::difference_type>(place(row, 0));
    beginInsertRows({}, row, row + count - 1);
    m_cells.insert(target, place(count, 0), QVariant());
    m_rows += count;
    m_rowHeader = shifted(m_rowHeader, row, count);
    endInsertRows();
    return true;
}

bool VKDataModelGeneric::insertColumns(int column, int count, const QModelIndex&) {
    if (column < 0 || column > m_columns || count < 1 || !fits(qint64{m_columns} + count, m_rows)) {
        return false;
    }
    beginInsertColumns({}, column, column + count - 1);
    const auto wider = static_cast<std::size_t>(m_columns) + static_cast<std::size_t>(count);
    Cells cells(wider * static_cast<std::size_t>(m_rows));
    for (int row = 0; row < m_rows; ++row) {
        for (int from = 0; from < m_columns; ++from) {
            const int to = from < column ? from : from + count;
            cells[static_cast<std::size_t>(row) * wider + static_cast<std::size_t>(to)] =
                std::move(m_cells[place(row, from)]);
        }
    }
    m_cells.swap(cells);
    m_columns += count;
    m_columnHeader = shifted(m_columnHeader, column, count);
    endInsertColumns();
    return true;
}

bool VKDataModelGeneric::removeRows(int row, int count, const QModelIndex& parent) {
    if (parent.isValid() || !inside(row, count, m_rows)) {
        return false;
    }
    const auto first = m_cells.begin() + static_cast<Cells::difference_type>(place(row, 0));
    beginRemoveRows({}, row, row + count - 1);
    m_cells.erase(first, first + static_cast<Cells::difference_type>(place(count, 0)));
    m_rows -= count;
    m_rowHeader = shifted(m_rowHeader, row, -count);
    endRemoveRows();
    return true;
}

bool VKDataModelGeneric::removeColumns(int column, int count, const QModelIndex& parent) {
    if (parent.isValid() || !inside(column, count, m_columns)) {
        return false;
    }
    beginRemoveColumns({}, column, column + count - 1);
    Cells cells;
    cells.reserve(m_cells.size());
    for (int row = 0; row < m_rows; ++row) {
        for (int from = 0; from < m_columns; ++from) {
            if (from < column || from >= column + count) {
                cells.push_back(std::move(m_cells[place(row, from)]));
            }
        }
    }
    m_cells.swap(cells);
    m_columns -= count;
    m_columnHeader = shifted(m_columnHeader, column, -count);
    endRemoveColumns();
    return true;
}

VKDataModelGeneric::Header& VKDataModelGeneric::header(Qt::Orientation orientation) {
    return orientation == Qt::Horizontal ? m_columnHeader : m_rowHeader;
}

const VKDataModelGeneric::Header& VKDataModelGeneric::header(Qt::Orientation orientation) const {
    return orientation == Qt::Horizontal ? m_columnHeader : m_rowHeader;
}

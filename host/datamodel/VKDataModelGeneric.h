#pragma once

#include "VKDataModel.h"

#include <QHash>
#include <QMap>

#include <vector>

/// The host's table of free size: cells hold one value each, headers one value and, under other roles,
/// whatever else was set.
///
/// Headers do not depend on the size: they may be set for sections that do not exist yet, and survive
/// `createEmpty`. A header that was never set is invalid. Inserted and removed rows and columns take the
/// headers behind them along. No table has more than `maxCells` cells.
class VKDataModelGeneric : public VKDataModel {
    Q_OBJECT

public:
    static constexpr qint64 maxCells = 100'000'000;

    /// No rows, no columns, no headers.
    VKDataModelGeneric();

    /// A copy of headers, properties and name, and of the cells as `other` answers them. Null gives an empty
    /// table.
    explicit VKDataModelGeneric(const VKDataModelGeneric* other);
    ~VKDataModelGeneric() override;

    /// Sets the size and empties all cells; a negative number counts as 0. Throws a VKError, and changes
    /// nothing, if that is more than `maxCells`.
    void createEmpty(int columns, int rows);

    /// Swaps rows and columns, headers included.
    void transpose();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;

    /// The cell's value under the value roles, invalid under any other.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    /// False for an index that is not of this table and for a role that is no value role.
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

    /// False for a negative section only.
    bool setHeaderData(int section, Qt::Orientation orientation, const QVariant& value,
                       int role = Qt::EditRole) override;

    /// All cells can be edited.
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    /// False for a valid parent, as no cell has children.
    bool insertRows(int row, int count, const QModelIndex& parent = {}) override;

    /// The parent does not matter: callers pass a cell where the root is meant.
    bool insertColumns(int column, int count, const QModelIndex& parent = {}) override;

    /// A range that does not lie wholly inside the table, or is empty or negative, changes nothing and
    /// gives false, so that no row is lost by accident.
    bool removeRows(int row, int count, const QModelIndex& parent = {}) override;
    bool removeColumns(int column, int count, const QModelIndex& parent = {}) override;

private:
    using Header = QMap<int, QHash<int, QVariant>>; // section, role
    using Cells = std::vector<QVariant>;

    bool contains(const QModelIndex& index) const;
    std::size_t place(int row, int column) const;
    bool fits(qint64 columns, qint64 rows) const;
    Header& header(Qt::Orientation orientation);
    const Header& header(Qt::Orientation orientation) const;

    int m_rows = 0;
    int m_columns = 0;
    Cells m_cells; // row by row
    Header m_rowHeader;
    Header m_columnHeader;
};

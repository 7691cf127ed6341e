#include "VKDataModelGeneric.h"
#include "VKError.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QSortFilterProxyModel>

#include <limits>
#include <optional>
#include <utility>

namespace {

constexpr int datasetRole = 34;

// Watches a table with Qt's own checks, and through a proxy that keeps its own picture of the table.
class DataModel : public testing::Test {
protected:
    DataModel() { proxy.setSourceModel(&model); }

    void fill(int columns, int rows) {
        model.createEmpty(columns, rows);
        for (int row = 0; row < rows; ++row) {
            model.setHeaderData(row, Qt::Vertical, QString("r%1").arg(row));
            for (int column = 0; column < columns; ++column) {
                model.setHeaderData(column, Qt::Horizontal, QString("c%1").arg(column));
                model.setData(model.index(row, column), QString("%1.%2").arg(row).arg(column));
            }
        }
    }

    // Headers and cells in lines, as the proxy has them.
    QString content() const {
        QStringList lines;
        for (int row = -1; row < proxy.rowCount(); ++row) {
            QStringList line(row < 0 ? QString("/") : proxy.headerData(row, Qt::Vertical).toString());
            for (int column = 0; column < proxy.columnCount(); ++column) {
                line += row < 0 ? proxy.headerData(column, Qt::Horizontal).toString()
                                : proxy.index(row, column).data().toString();
            }
            lines += line.join(' ');
        }
        return lines.join('\n');
    }

    VKDataModelGeneric model;
    std::optional<QAbstractItemModelTester> tester{std::in_place, &model,
                                                   QAbstractItemModelTester::FailureReportingMode::Warning};
    QSortFilterProxyModel proxy;
};

// Computes its cells, as a table of results does.
class Computed : public VKDataModelGeneric {
public:
    QVariant data(const QModelIndex& index, int role) const override {
        return isValueRole(role) ? QVariant(index.row() * 10 + index.column()) : QVariant();
    }
};

} // namespace

TEST_F(DataModel, headers_set_before_the_size_survive_it) {
    qRegisterMetaType<Qt::Orientation>("Qt::Orientation");
    QSignalSpy told(&model, &QAbstractItemModel::headerDataChanged);
    EXPECT_TRUE(model.setHeaderData(1, Qt::Vertical, "b", datasetRole));
    EXPECT_TRUE(model.setHeaderData(0, Qt::Horizontal, "Quality", datasetRole));
    EXPECT_EQ(told.count(), 0) << "views know existing sections only";
    model.createEmpty(1, 2);
    EXPECT_EQ(content(), "/ Quality\n \nb ");
    model.createEmpty(1, 3);
    EXPECT_EQ(model.headerData(1, Qt::Vertical), "b");
    model.setHeaderData(2, Qt::Vertical, "c");
    EXPECT_EQ(told.count(), 1);
    EXPECT_FALSE(model.setHeaderData(-1, Qt::Vertical, "x"));
    EXPECT_TRUE(model.setHeaderData(std::numeric_limits<int>::max(), Qt::Vertical, "far"));
    EXPECT_TRUE(model.insertRows(0, 1)) << "moving the farthest header must not overflow";
}

TEST_F(DataModel, three_roles_read_and_write_one_value) {
    model.createEmpty(1, 1);
    const QModelIndex cell = model.index(0, 0);
    QSignalSpy told(&model, &QAbstractItemModel::dataChanged);
    for (const int written : {0, 2, datasetRole}) {
        EXPECT_TRUE(model.setData(cell, written, written));
        model.setHeaderData(0, Qt::Vertical, written, written);
        for (const int read : {0, 2, datasetRole}) {
            EXPECT_EQ(cell.data(read), written);
            EXPECT_EQ(model.headerData(0, Qt::Vertical, read), written);
        }
    }
    EXPECT_EQ(told.count(), 3);
    EXPECT_FALSE(model.setData(cell, "x", Qt::CheckStateRole));
    EXPECT_FALSE(cell.data(Qt::CheckStateRole).isValid());
    model.setHeaderData(0, Qt::Vertical, "SampleID", 5);
    EXPECT_EQ(model.headerData(0, Qt::Vertical, 5), "SampleID") << "a header keeps other roles apart";
    EXPECT_EQ(model.headerData(0, Qt::Vertical), datasetRole);
}

TEST_F(DataModel, transposing_turns_cells_and_headers) {
    fill(3, 2);
    model.setHeaderData(1, Qt::Vertical, "id", 5);
    model.transpose();
    EXPECT_EQ(content(), "/ r0 r1\nc0 0.0 1.0\nc1 0.1 1.1\nc2 0.2 1.2");
    EXPECT_EQ(model.headerData(1, Qt::Horizontal, 5), "id");
    tester.reset(); // that of Qt 5.15.3 takes rows without columns for a fault
    model.createEmpty(0, 4);
    model.transpose();
    EXPECT_EQ(model.columnCount(), 4);
    EXPECT_EQ(model.rowCount(), 0);
}

TEST_F(DataModel, inserting_takes_cells_and_headers_along_whatever_the_parent_of_a_column) {
    fill(2, 2);
    EXPECT_TRUE(model.insertColumn(0, model.index(0, 0)));
    EXPECT_EQ(content(), "/  c0 c1\nr0  0.0 0.1\nr1  1.0 1.1");
    EXPECT_FALSE(model.insertRow(0, model.index(0, 0))) << "a cell has no rows";
    EXPECT_TRUE(model.insertRows(1, 1));
    EXPECT_EQ(content(), "/  c0 c1\nr0  0.0 0.1\n   \nr1  1.0 1.1");
    EXPECT_TRUE(model.removeColumn(2));
    EXPECT_EQ(content(), "/  c0\nr0  0.0\n  \nr1  1.0");
    EXPECT_FALSE(model.insertColumns(5, 1) || model.insertColumns(-1, 1) || model.insertColumns(0, 0));
    EXPECT_FALSE(model.insertRows(0, std::numeric_limits<int>::max())) << "beyond the limit of cells";
}

TEST_F(DataModel, a_range_not_wholly_inside_removes_nothing) {
    fill(1, 5);
    const QString before = content();
    const int most = std::numeric_limits<int>::max();
    for (const auto& [row, count] :
         {std::pair{7, -1}, {5, 1}, {2, -1}, {4, 2}, {-1, 2}, {0, 0}, {1, most}, {most, most}}) {
        EXPECT_FALSE(model.removeRows(row, count)) << row << ' ' << count;
        EXPECT_FALSE(model.removeColumns(row, count)) << row << ' ' << count;
    }
    EXPECT_FALSE(model.removeRows(0, 1, model.index(0, 0)));
    EXPECT_EQ(content(), before);
    EXPECT_TRUE(model.removeRows(1, 3));
    EXPECT_EQ(content(), "/ c0\nr0 0.0\nr4 4.0");
    EXPECT_TRUE(model.removeRows(0, 2));
    EXPECT_EQ(model.rowCount(), 0);
}

TEST_F(DataModel, a_size_beyond_the_limit_is_refused_and_changes_nothing) {
    fill(2, 2);
    const QString before = content();
    const int most = std::numeric_limits<int>::max();
    EXPECT_THROW(model.createEmpty(most, most), VKError);
    EXPECT_THROW(model.createEmpty(100'000'001, 1), VKError);
    EXPECT_EQ(content(), before);
    tester.reset(); // that of Qt 5.15.3 takes rows without columns for a fault
    model.createEmpty(-1, 3);
    EXPECT_EQ(model.columnCount(), 0);
    EXPECT_EQ(model.rowCount(), 3);
    model.createEmpty(-5, std::numeric_limits<int>::min());
    EXPECT_EQ(model.rowCount(), 0);
}

TEST_F(DataModel, foreign_and_invalid_indexes_touch_nothing) {
    fill(1, 1);
    VKDataModelGeneric other;
    other.createEmpty(9, 9);
    for (const QModelIndex& index : {QModelIndex(), other.index(0, 0), other.index(8, 8)}) {
        EXPECT_FALSE(model.setData(index, "x"));
        EXPECT_FALSE(model.data(index).isValid());
        EXPECT_EQ(model.flags(index), Qt::NoItemFlags);
    }
    EXPECT_FALSE(model.index(0, 0, model.index(0, 0)).isValid()) << "cells have no children";
    EXPECT_TRUE(model.flags(model.index(0, 0)).testFlag(Qt::ItemIsEditable));
}

TEST_F(DataModel, a_copy_is_independent_and_holds_computed_cells) {
    Computed source;
    source.createEmpty(2, 2);
    source.setHeaderData(1, Qt::Horizontal, "x", 5);
    source.setName("Source Rock", "New project");
    source.setProperties({TProperty("Vorn_parameter", "true", QString(), QString())});
    const VKDataModelGeneric copy(&source);
    source.createEmpty(0, 0);
    ASSERT_EQ(copy.rowCount(), 2);
    EXPECT_EQ(copy.index(1, 1).data(datasetRole), 11);
    EXPECT_EQ(copy.headerData(1, Qt::Horizontal, 5), "x");
    EXPECT_EQ(copy.name() + '/' + copy.project(), "Source Rock/New project");
    ASSERT_EQ(copy.properties().size(), 1);
    EXPECT_EQ(copy.properties().first().value(), "true");
    EXPECT_EQ(VKDataModelGeneric(static_cast<const VKDataModelGeneric*>(nullptr)).columnCount(), 0);
}

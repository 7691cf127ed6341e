#include "MessageCollector.h"
#include "TableView.h"
#include "VKDataModelGeneric.h"
#include "VKError.h"

#include <QClipboard>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QHeaderView>
#include <QSignalSpy>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace {

constexpr int role = VKDataModel::datasetRole;

/// Cells that another part of the program keeps, and changes without a signal.
class LiveModel : public VKDataModelGeneric {
public:
    explicit LiveModel(const QVector<QVariant>& values) : cells(values) {
        createEmpty(1, cells.size());
        for (int row = 0; row < cells.size(); ++row) {
            setHeaderData(row, Qt::Vertical, QString("row %1").arg(row), role);
        }
        setHeaderData(0, Qt::Horizontal, QString("Value"), role);
    }

    QVariant data(const QModelIndex& index, int wanted) const override {
        if (fails) {
            throw VKError(QString("The grades are gone."));
        }
        reads += wanted == role ? 1 : 0;
        return isValueRole(wanted) ? cells.at(index.row()) : QVariant();
    }

    QVector<QVariant> cells;
    bool fails = false;
    mutable int reads = 0;
};

class TableViewTest : public testing::Test {
protected:
    TableViewTest() { MessageLoggerInterface::setDefaultLogger(&log); }

    template <class Model>
    Model& show(std::unique_ptr<Model> model) {
        Model& shownModel = *model;
        view = std::make_unique<TableView>(std::move(model));
        view->resize(600, 400);
        view->show();
        view->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(view.get()));
        grid = view->findChild<QTableView*>();
        grid->setFocus();
        return shownModel;
    }
    LiveModel& show(const QVector<QVariant>& cells) { return show(std::make_unique<LiveModel>(cells)); }

    void clickHeader(int column) {
        const QPoint place(grid->columnViewportPosition(column) + 20, grid->horizontalHeader()->height() / 2);
        QTest::mouseClick(grid->horizontalHeader()->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    }
    /// The cells of the first column, and the ends of the row headers, from top to bottom.
    QString shown() const {
        QStringList texts;
        for (int row = 0; row < grid->model()->rowCount(); ++row) {
            texts.append(grid->model()->index(row, 0).data().toString());
        }
        return texts.join(' ');
    }
    QString rowHeaders() const {
        QString text;
        for (int row = 0; row < grid->model()->rowCount(); ++row) {
            text += grid->model()->headerData(row, Qt::Vertical).toString().right(1);
        }
        return text;
    }
    void select(int top, int left, int bottom, int right) {
        grid->selectionModel()->select({grid->model()->index(top, left), grid->model()->index(bottom, right)},
                                       QItemSelectionModel::Select);
    }
    QString copied(Qt::KeyboardModifiers with = Qt::NoModifier) {
        QTest::keyClick(grid, Qt::Key_C, Qt::ControlModifier | with);
        return QGuiApplication::clipboard()->text();
    }
    QStringList errors() const { return log.messages(MessageLevel::Error); }

    const QTemporaryDir folder;
    MessageCollector log;
    std::unique_ptr<TableView> view;
    QTableView* grid = nullptr;
};

} // namespace

TEST_F(TableViewTest, a_header_sorts_by_value_up_down_and_back_and_row_headers_follow) {
    show({10., QString("a10"), 9., QVariant(), QString("A2"), QString("-0.5"), 9.});
    clickHeader(0);
    EXPECT_EQ(shown(), "-0.5 9 9 10 A2 a10 ");
    EXPECT_EQ(rowHeaders(), "5260413");
    clickHeader(0);
    EXPECT_EQ(shown(), "a10 A2 10 9 9 -0.5 ");
    EXPECT_EQ(rowHeaders(), "1402653");
    clickHeader(0);
    EXPECT_EQ(rowHeaders(), "0123456");
    EXPECT_EQ(grid->horizontalHeader()->sortIndicatorSection(), -1);
}

TEST_F(TableViewTest, cells_that_change_silently_are_followed_when_asked) {
    LiveModel& model = show({1., 2., 3.});
    clickHeader(0);
    select(0, 0, 0, 0);
    const QImage before = grid->grab().toImage();
    model.cells = {30., 20., 10.};
    EXPECT_EQ(shown(), "30 20 10"); // the order of the last sort, the values of now
    EXPECT_NE(grid->grab().toImage(), before);
    model.reads = 0;
    view->refreshCells();
    EXPECT_LE(model.reads, 3); // reading may be slow: once a row
    EXPECT_EQ(shown(), "10 20 30");
    EXPECT_EQ(rowHeaders(), "210");
    EXPECT_TRUE(grid->selectionModel()->isSelected(grid->model()->index(2, 0)));
}

TEST_F(TableViewTest, a_change_of_shape_gives_the_order_up) {
    LiveModel& model = show({2., 1.});
    clickHeader(0);
    model.cells.append(0.);
    model.insertRows(2, 1);
    EXPECT_EQ(shown(), "2 1 0");
    EXPECT_EQ(grid->horizontalHeader()->sortIndicatorSection(), -1);
    clickHeader(0);
    EXPECT_EQ(shown(), "0 1 2");
}

TEST_F(TableViewTest, a_cell_that_fails_is_empty_and_said_once) {
    LiveModel& model = show({2., 1.});
    model.fails = true;
    grid->grab();
    view->refreshCells();
    grid->grab();
    EXPECT_EQ(shown(), " ");
    EXPECT_EQ(errors(), QStringList{"The grades are gone."});
    view->exportTo(folder.filePath("a.csv"));
    EXPECT_EQ(errors().size(), 2);
    EXPECT_FALSE(QFile::exists(folder.filePath("a.csv")));
}

TEST_F(TableViewTest, selected_cells_are_copied_as_a_rectangle) {
    VKDataModelGeneric& model = show(std::make_unique<VKDataModelGeneric>());
    model.createEmpty(3, 3);
    model.setHeaderData(0, Qt::Horizontal, "c0", role);
    model.setHeaderData(0, Qt::Vertical, "first", role);
    model.setData(model.index(0, 0), 0.1 + 0.2, role);
    model.setData(model.index(0, 2), "a\tb", role);
    model.setData(model.index(2, 0), "5\" pipe", role);
    model.setData(model.index(2, 2), "two\nlines", role);
    grid->selectionModel()->setCurrentIndex(grid->model()->index(2, 0), QItemSelectionModel::NoUpdate);
    EXPECT_EQ(copied(), "\"5\"\" pipe\"\r\n");
    select(0, 0, 0, 2);
    select(2, 2, 2, 2);
    EXPECT_EQ(copied(), "0.30000000000000004\t\t\"a\tb\"\r\n\t\t\"two\nlines\"\r\n");
    grid->clearSelection();
    select(2, 0, 2, 0);
    EXPECT_EQ(copied(Qt::ShiftModifier), "\tc0\r\n\t\"5\"\" pipe\"\r\n");
    QTest::keyClick(grid, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(copied().count("\r\n"), 3);
}

TEST_F(TableViewTest, exports_in_the_order_shown_and_leaves_nothing_when_it_fails) {
    show({3., 1., 2.});
    clickHeader(0);
    QFile file(folder.filePath("a.csv"));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite) && file.write(QByteArray(100, 'x')) == 100);
    file.close();
    view->exportTo(file.fileName());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "\xef\xbb\xbf,Value\r\nrow 1,1\r\nrow 2,2\r\nrow 0,3\r\n");
    view->exportTo(folder.filePath("none/b.csv"));
    ASSERT_EQ(errors().size(), 1);
    EXPECT_TRUE(errors()[0].contains("b.csv"));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList("a.csv"));
}

TEST_F(TableViewTest, tells_its_title_when_it_changes) {
    LiveModel& model = show({1.});
    const QSignalSpy told(view.get(), &TableView::titleChanged);
    model.setName("Source Rock", "lab");
    view->refreshCells();
    view->refreshCells();
    ASSERT_EQ(told.size(), 1);
    EXPECT_EQ(told.first().first(), "Source Rock");
}

TEST_F(TableViewTest, a_million_cells_are_shown_and_sorted_in_time) {
    auto model = std::make_unique<VKDataModelGeneric>();
    model->createEmpty(10, 100'000);
    for (int row = 0; row < model->rowCount(); ++row) {
        model->setData(model->index(row, 0), (row * 7919) % 100'000, role);
    }
    QElapsedTimer clock;
    clock.start();
    show(std::move(model));
    grid->grab();
    clickHeader(0);
    grid->grab();
    RecordProperty("milliseconds", static_cast<int>(clock.elapsed()));
    EXPECT_LT(clock.elapsed(), 3000);
    EXPECT_EQ(grid->model()->index(99'999, 0).data().toInt(), 99'999);
}

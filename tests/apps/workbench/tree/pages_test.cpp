#include "Transaction.h"
#include "TreeFixture.h"

namespace {

constexpr int page = ProjectPages::pageSize;
constexpr int count = 3 * page;

QString numbered(const char* text, int number) {
    return QString("%1 %2").arg(text).arg(number);
}

/// A tree of more than is read at once, in both sections.
class PagesTest : public TreeTest {
protected:
    PagesTest() {
        TechDB::Transaction transaction(*database);
        for (int i = 1; i <= count; ++i) {
            add(numbered("a", i));
            addDataset(numbered("d", i), {numbered("of", i)});
        }
        transaction.commit();
        settle();
    }

    QModelIndex section(int row) const { return shown().index(row, 0); }
    int read(int row) const { return shown().rowCount(section(row)); }
    QModelIndex last(int row) const { return shown().index(read(row) - 1, 0, section(row)); }
    QString currentName() const { return view().currentIndex().data().toString(); }
    QModelIndex loaded(const QString& name, int row = 1) const {
        return shown()
            .match(shown().index(0, 0, section(row)), Qt::DisplayRole, name, 1, Qt::MatchExactly)
            .value(0);
    }
    void scrollTo(const QModelIndex& index) {
        view().scrollTo(index, QAbstractItemView::PositionAtBottom);
        for (int i = 0; i < 3; ++i) {
            settle();
        }
    }
};

TEST_F(PagesTest, what_is_shown_is_read_and_the_next_rows_when_they_come_near) {
    EXPECT_EQ(read(0), page);
    EXPECT_EQ(read(1), page);
    EXPECT_EQ(shown().rowCount(shown().index(0, 0, section(0))), 0);
    EXPECT_TRUE(shown().hasChildren(shown().index(0, 0, section(0))));
    scrollTo(shown().index(page / 2, 0, section(0)));
    EXPECT_EQ(read(0), page) << "not before it has to be";
    EXPECT_EQ(last(0).data().toString(), numbered("d", page));
    scrollTo(last(0));
    EXPECT_EQ(read(0), 2 * page);
    EXPECT_EQ(read(1), page);
    EXPECT_EQ(last(0).data().toString(), numbered("d", 2 * page));
    view().expand(shown().index(1, 0, section(0)));
    EXPECT_EQ(shown().index(0, 0, shown().index(1, 0, section(0))).data().toString(), "of 2");
}

TEST_F(PagesTest, selecting_all_takes_what_was_not_read) {
    QTest::keyClick(&view(), Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(tree.selectedObjects().size(), 2 * count);
    EXPECT_EQ(selectedNames().last(), numbered("a", count));
}

TEST_F(PagesTest, the_end_is_the_end_of_all) {
    view().setCurrentIndex(loaded("a 10"));
    QTest::keyClick(&view(), Qt::Key_End, Qt::ShiftModifier);
    EXPECT_EQ(currentName(), numbered("a", count));
    EXPECT_EQ(tree.selectedObjects().size(), count - 9);
    QTest::keyClicks(&view(), "d 7");
    EXPECT_EQ(currentName(), "d 7");
}

TEST_F(PagesTest, a_range_over_the_end_of_what_was_read_takes_the_rest) {
    view().setCurrentIndex(loaded(numbered("d", page), 0));
    view().scrollTo(loaded("a 3"));
    QTest::mouseClick(view().viewport(), Qt::LeftButton, Qt::ShiftModifier,
                      view().visualRect(loaded("a 3")).center());
    EXPECT_EQ(tree.selectedObjects().size(), count - page + 1 + 3);
}

TEST_F(PagesTest, the_filter_finds_what_was_not_read_and_leaves_it_in_its_place) {
    const QString far = numbered("a", 2 * page + 7);
    filter().setText(numbered("OF", 2 * page + 7));
    EXPECT_EQ(names(), QStringList({"Datasets", '.' + numbered("d", 2 * page + 7),
                                    ".." + numbered("of", 2 * page + 7)}));
    filter().setText(far);
    EXPECT_EQ(names(), QStringList({"Analyses", '.' + far}));
    view().setCurrentIndex(shown().index(0, 0, section(0)));
    filter().clear();
    EXPECT_EQ(currentName(), far);
    EXPECT_EQ(selectedNames(), QStringList(far));
    EXPECT_FALSE(view().visualRect(view().currentIndex()).intersected(view().viewport()->rect()).isEmpty());
    EXPECT_EQ(view().currentIndex().row(), 2 * page + 6);
    EXPECT_EQ(read(0), page) << "nothing held more of them";
}

TEST_F(PagesTest, changes_elsewhere_leave_as_much_read_and_what_is_selected_selected) {
    const qint64 moved = database->getAnalysis("a 5")->key();
    view().setCurrentIndex(loaded("a 6"));
    view().selectionModel()->select(loaded("a 5"), QItemSelectionModel::Select | QItemSelectionModel::Rows);
    for (int i = 0; i < 3; ++i) {
        add(numbered("a 7", i));
        remove(numbered("a", 20 + i));
        settle();
    }
    EXPECT_EQ(read(1), page);
    EXPECT_TRUE(loaded("a 7 2").isValid());
    EXPECT_FALSE(loaded("a 21").isValid());
    database->renameAnalysis(moved, numbered("a", 2 * page) + " b");
    settle();
    EXPECT_EQ(selectedNames(), QStringList({"a 6", numbered("a", 2 * page) + " b"}));
    EXPECT_LT(read(1), count);
}

TEST_F(PagesTest, what_another_window_moves_while_pages_are_read_is_there_once) {
    const auto other = TechDB::TDatabase::open(path());
    other->renameAnalysis(other->getAnalysis("a 5")->key(), numbered("a", page + 1) + " b");
    other->removeAnalysis(other->getAnalysis("a 6")->key());
    EXPECT_EQ(names().filter("a ").size(), count);
    tree.refresh();
    QStringList found = names().filter(".a ");
    EXPECT_EQ(found.size(), count - 1);
    EXPECT_EQ(found.removeDuplicates(), 0);
    EXPECT_EQ(found.at(page - 1), '.' + numbered("a", page + 1) + " b");
}

} // namespace

#include "TreeFixture.h"

#include <QLocale>

namespace {

TEST_F(TreeTest, sorts_names_with_numbers_in_the_order_of_the_numbers_and_keeps_it) {
    QAbstractItemModelTester tester(&shown(), QAbstractItemModelTester::FailureReportingMode::Warning);
    for (const char* name : {"S 10", "s 9", "S 100", "R 2"}) {
        add(QLatin1String(name));
    }
    addDataset(QStringLiteral("Set"), {QStringLiteral("11"), QStringLiteral("2")});
    settle();
    EXPECT_EQ(names(), QStringList({"Datasets", ".Set", "..2", "..11", "Analyses", ".R 2", ".s 9", ".S 10",
                                    ".S 100"}));
    database->renameAnalysis(database->getAnalysis(QStringLiteral("S 100"))->key(), QStringLiteral("S 1"));
    addDataset(QStringLiteral("Set 3"), {});
    settle();
    EXPECT_EQ(names(), QStringList({"Datasets", ".Set", "..2", "..11", ".Set 3", "Analyses", ".R 2", ".S 1",
                                    ".s 9", ".S 10"}));
}

TEST_F(TreeTest, shows_date_and_grouped_number_of_points) {
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    add(QStringLiteral("A"), 2401);
    settle();
    const QModelIndex analysis = find(QStringLiteral("A"));
    EXPECT_EQ(analysis.siblingAtColumn(2).data().toString(), QStringLiteral("2.401"));
    EXPECT_EQ(analysis.siblingAtColumn(1).data().toString(),
              database->analyses().first().created.toLocalTime().date().toString(QStringLiteral("dd.MM.yy")));
    QLocale::setDefault(QLocale::c());
}

TEST_F(TreeTest, what_remains_stays_selected_and_open_while_the_project_changes) {
    QAbstractItemModelTester tester(&shown(), QAbstractItemModelTester::FailureReportingMode::Warning);
    const qint64 first = add(QStringLiteral("B"))->key();
    add(QStringLiteral("C"));
    const qint64 set = addDataset(QStringLiteral("Set"), {QStringLiteral("one")})->key();
    settle();
    view().expand(find(QStringLiteral("Set")));
    select({"B", "C", "Set"});
    view().collapse(find(QStringLiteral("Analyses")));

    database->renameAnalysis(first, QStringLiteral("Z"));
    database->renameWell(set, QStringLiteral("Y"));
    database->removeAnalysis(database->getAnalysis(QStringLiteral("C"))->key());
    database->addSample(set, QStringLiteral("two"), {{"r"}, {"c"}, {1.0}, {}});
    addDataset(QStringLiteral("A set"), {});
    add(QStringLiteral("A"));
    settle();

    EXPECT_EQ(selectedNames(), QStringList({"Y", "Z"}));
    EXPECT_TRUE(view().isExpanded(find(QStringLiteral("Y"))));
    EXPECT_FALSE(view().isExpanded(find(QStringLiteral("A set"))));
    EXPECT_FALSE(view().isExpanded(find(QStringLiteral("Analyses"))));
    EXPECT_EQ(shown().rowCount(find(QStringLiteral("Y"))), 2);
}

TEST_F(TreeTest, rereads_what_another_window_has_written) {
    add(QStringLiteral("ours"));
    settle();
    const auto other = TechDB::TDatabase::open(path());
    addAnalysis(*other, QStringLiteral("theirs"));
    other->removeAnalysis(other->getAnalysis(QStringLiteral("ours"))->key());
    settle();
    EXPECT_EQ(names(), QStringList({"Analyses", ".ours"}));
    select({"ours"});
    EXPECT_TRUE(tree.selectedObjects().isEmpty()) << "an object that is gone";
    tree.refresh();
    EXPECT_EQ(names(), QStringList({"Analyses", ".theirs"}));
}

TEST_F(TreeTest, takes_nothing_of_one_project_for_the_next) {
    addDataset(QStringLiteral("Set"), {QStringLiteral("one")});
    add(QStringLiteral("A"));
    settle();
    select({"A"});
    const auto next = TechDB::TDatabase::create(folder.filePath(QStringLiteral("next.vornproj")));
    addAnalysis(*next, QStringLiteral("N"));
    tree.setProject(next.get());
    EXPECT_EQ(names(), QStringList({"Analyses", ".N"}));
    EXPECT_TRUE(tree.selectedObjects().isEmpty());
    EXPECT_TRUE(view().isExpanded(find(QStringLiteral("Analyses"))));
    add(QStringLiteral("late"));
    settle();
    EXPECT_EQ(names(), QStringList({"Analyses", ".N"}));
    tree.setProject(nullptr);
    EXPECT_EQ(names(), QStringList());
    EXPECT_FALSE(filter().isEnabled());
}

} // namespace

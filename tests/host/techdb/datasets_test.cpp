#include "ProjectFixture.h"

#include <QSignalSpy>

#include <cmath>
#include <limits>

using TechDB::SampleTable;

namespace {

class Datasets : public ProjectTest {
protected:
    static SampleTable twoByTwo() {
        return {{"Tmax", ""},
                {"Sample 1", "é"},
                {431.0, QVariant(), "", "n.d."},
                {TProperty("Vorn_parameter", "true")}};
    }
};

} // namespace

TEST_F(Datasets, a_sample_comes_back_as_it_was) {
    const qint64 well = database->addWell("Custom import-a.xlsx")->key();
    SampleTable table = twoByTwo();
    table.cells = {std::numeric_limits<double>::denorm_min(), 0.1 + 0.2, "", "n.d."};
    database->addSample(well, "Sample 7", table);
    database->addSample(well, "no cells", {{}, {"only a column"}, {}, {}});
    reopen();

    const TechDB::DatasetInfo info = database->datasets().at(0);
    EXPECT_EQ(info.sampleCount, 2);
    EXPECT_EQ(database->getWell("Custom import-a.xlsx")->key(), info.key);
    const QVector<TechDB::SampleInfo> samples = database->samples(info.key);
    ASSERT_EQ(samples.size(), 2);
    EXPECT_EQ(samples.at(0).name, "Sample 7");
    EXPECT_EQ(samples.at(0).rowCount, 2);
    EXPECT_EQ(samples.at(1).columnCount, 1);

    const SampleTable stored = database->sampleTable(samples.at(0).key);
    EXPECT_EQ(stored.rowNames, table.rowNames);
    EXPECT_EQ(stored.columnNames, table.columnNames);
    EXPECT_EQ(stored.cells, table.cells) << "an empty text isn't an empty cell";
    EXPECT_EQ(stored.cell(0, 0).toDouble(), std::numeric_limits<double>::denorm_min());
    EXPECT_EQ(stored.cell(0, 1).toDouble(), 0.1 + 0.2) << "to the bit, which variants don't compare";
    EXPECT_EQ(stored.properties.at(0).name(), "Vorn_parameter");
    EXPECT_EQ(stored.properties.at(0).value(), "true");
}

TEST_F(Datasets, values_can_be_read_with_plain_sql) {
    const qint64 well = database->addWell("D")->key();
    database->addSample(well, "S", twoByTwo());
    const QString from = "FROM dataset_values WHERE dataset = 'D' AND sample = 'S' AND ";
    EXPECT_EQ(sql({"SELECT number_value " + from + "row_name = 'Tmax'"}), QVariant(431.0));
    EXPECT_EQ(sql({"SELECT text_value " + from + "column_name = 'é'"}), QVariant("n.d."));
    EXPECT_EQ(sql({"SELECT count(*) FROM dataset_values"}).toInt(), 3);
}

TEST_F(Datasets, removing_a_dataset_leaves_nothing_of_it) {
    const qint64 well = database->addWell("D")->key();
    database->addSample(well, "S", twoByTwo());
    const qint64 other = database->addWell("other")->key();
    reopen();
    QSignalSpy changes(database.get(), &TechDB::TDatabase::changed);
    database->removeWell(well);
    EXPECT_EQ(changes.count(), 1);
    EXPECT_EQ(sql({"SELECT (SELECT count(*) FROM samples) + (SELECT count(*) FROM sample_values)"
                   " + (SELECT count(*) FROM sample_rows) + (SELECT count(*) FROM sample_columns)"
                   " + (SELECT count(*) FROM sample_properties)"})
                  .toInt(),
              0);
    database->renameWell(other, "D");
    EXPECT_EQ(database->wellByKey(other)->displayName(), "D");
    EXPECT_EQ(database->getWell("other"), nullptr);
}

TEST_F(Datasets, names_taken_and_tables_that_do_not_fit_are_refused_whole) {
    const qint64 well = database->addWell("D")->key();
    database->addSample(well, "S", twoByTwo());
    SampleTable fewer = twoByTwo();
    fewer.cells.removeLast();
    SampleTable infinite = twoByTwo();
    infinite.cells[0] = std::nan("");
    EXPECT_REFUSED(database->addWell("D"), "<b>D</b> is already stored");
    EXPECT_REFUSED(database->addSample(well, "S", twoByTwo()), "<b>S</b> already");
    EXPECT_REFUSED(database->addSample(well, "T", fewer), "2 rows, 2 columns and 3 values");
    EXPECT_REFUSED(database->addSample(well, "T", infinite), "no finite number");
    EXPECT_NE(failure([&] { database->addSample(well + 1, "T", twoByTwo()); }), "") << "no such dataset";
    EXPECT_EQ(database->samples(well).size(), 1);
}

TEST_F(Datasets, stored_tables_that_do_not_fit_together_are_refused) {
    for (const QString statement :
         {"UPDATE sample_values SET row_position = 2 WHERE row_position = 1",
          "UPDATE sample_values SET column_position = -1 WHERE column_position = 1",
          "UPDATE sample_rows SET position = 2147483647 WHERE position = 1", "DELETE FROM sample_columns"}) {
        const qint64 well = database->addWell("D")->key();
        const qint64 sample = database->addSample(well, "S", twoByTwo());
        sql({statement});
        EXPECT_REFUSED(database->sampleTable(sample), "don't fit together") << qPrintable(statement);
        database->removeWell(well);
    }
}

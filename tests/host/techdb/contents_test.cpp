#include "MessageCollector.h"
#include "ProjectFixture.h"
#include "Transaction.h"

#include <QSignalSpy>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>

using TechDB::ListedNames;
using TechDB::NameRange;
using TechDB::ObjectChange;
using TechDB::SampleTable;

namespace {

class Analyses : public ProjectTest {};

bool sameBits(const std::vector<float>& a, const std::vector<float>& b) {
    return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size() * sizeof(float)) == 0;
}

class Datasets : public ProjectTest {
protected:
    static SampleTable twoByTwo() {
        return {{"Tmax", ""},
                {"Sample 1", "é"},
                {431.0, QVariant(), "", "n.d."},
                {TProperty("Vorn_parameter", "true")}};
    }
};

class Names : public ProjectTest {
protected:
    Names() {
        for (const char* const name :
             {"S 10", "s 9", "100%", "under_score", "a!b", "\u00c9cole 2", "S 100"}) {
            database->addAnalysis(QString::fromUtf8(name), {}, ramp());
        }
    }
    QString holding(const QString& part) const {
        NameRange range;
        range.part = part;
        return joined(database->analysisNames(range));
    }
};

} // namespace

TEST_F(Analyses, a_curve_comes_back_bit_for_bit_after_reopening) {
    using Limits = std::numeric_limits<float>;
    const std::vector<float> x{3.0F, -0.0F, Limits::denorm_min(), Limits::max(), 0.1F};
    const std::vector<float> y{Limits::lowest(), -1e-40F, 0.0F, -0.0F, 16777217.0F};
    database->addAnalysis("A é.S00", "Source Rock QAQC", {x, y});
    reopen();

    const VKObject2Analysis* analysis = database->getAnalysis("A é.S00");
    ASSERT_NE(analysis, nullptr);
    ASSERT_NE(analysis->TIC(), nullptr);
    for (const VKObject2Analysis* source :
         {analysis, static_cast<const VKObject2Analysis*>(analysis->TIC())}) {
        TAnalysisData* data = nullptr;
        ASSERT_TRUE(TechDB::TDatabase::analysisData(source, &data));
        ASSERT_EQ(data->dataSize(), 5);
        EXPECT_TRUE(sameBits(x, {data->dataX(), data->dataX() + 5}));
        EXPECT_TRUE(sameBits(y, {data->dataY(), data->dataY() + 5}));
    }
    const TechDB::AnalysisInfo info = database->analyses().at(0);
    EXPECT_EQ(info.analysisType, "Source Rock QAQC");
    EXPECT_LT(qAbs(info.created.secsTo(QDateTime::currentDateTimeUtc())), 60);
}

TEST_F(Analyses, a_curve_is_stored_as_abscissae_then_ordinates_lowest_byte_first) {
    database->addAnalysis("A", {}, {{0.0F, 1.0F}, {-2.0F, 0.5F}});
    const QString digits = server ? "encode(points, 'hex')" : "lower(hex(points))";
    EXPECT_EQ(sql({"SELECT " + digits + " FROM curves"}).toString(), "000000000000803f000000c00000003f");
}

TEST_F(Analyses, curves_that_no_module_could_use_are_refused_with_the_cause) {
    const float nan = std::nanf("");
    const float infinite = std::numeric_limits<float>::infinity();
    const std::vector<std::pair<TAnalysisData, std::string>> cases{
        {{{}, {}}, "no points"},
        {{{1.0F}, {1.0F}}, "same abscissa"},
        {{{2.0F, 2.0F, 2.0F}, {1.0F, 2.0F, 3.0F}}, "same abscissa"},
        {{{0.0F, 1.0F, 2.0F}, {1.0F, nan, 3.0F}}, "point 2 "},
        {{{0.0F, 1.0F, -infinite}, {1.0F, 2.0F, 3.0F}}, "point 3 "},
        {{{0.0F, 1.0F}, {1.0F}}, "2 abscissae and 1 ordinates"},
    };
    for (const auto& [curve, cause] : cases) {
        const std::string text =
            failure([&, &refused = curve] { database->addAnalysis("<x>", {}, refused); });
        EXPECT_TRUE(says(text, cause));
        EXPECT_TRUE(says(text, "<b>&lt;x&gt;</b>"));
    }
    EXPECT_TRUE(database->analyses().isEmpty());
}

TEST_F(Analyses, names_are_unique_and_renaming_reaches_the_objects_in_use) {
    const VKObject2Analysis* first = database->addAnalysis("first", {}, ramp());
    database->addAnalysis("second", {}, ramp());
    EXPECT_REFUSED(database->addAnalysis("first", {}, ramp()), "<b>first</b> is already");
    EXPECT_REFUSED(database->renameAnalysis(first->key(), "second"), "<b>second</b> is already");
    EXPECT_EQ(first->name(), "first");

    database->renameAnalysis(first->key(), "First");
    EXPECT_EQ(first->displayName(), "First");
    EXPECT_EQ(first->TIC()->displayName(), "First");
    EXPECT_EQ(database->getAnalysis("First"), first);
    EXPECT_EQ(database->getAnalysis("first"), nullptr) << "letter by letter";
    EXPECT_EQ(analysisNames(), QStringList({"First", "second"}));
}

TEST_F(Analyses, texts_that_can_be_no_name_are_refused) {
    const VKObject2Analysis* kept = database->addAnalysis("kept", {}, ramp());
    const QStringList bad = QString("|  | a|a |a\nb|\x1b[m").split('|')
                            << QString("a") + QChar(0) << QString(256, 'n') << QString(QChar(0xd800));
    for (const QString& name : bad) {
        EXPECT_REFUSED(database->addAnalysis(name, {}, ramp()), "can't be a name");
        EXPECT_REFUSED(database->renameAnalysis(kept->key(), name), "can't be a name");
    }
    EXPECT_EQ(analysisNames(), QStringList("kept"));
    database->addAnalysis("'; DROP TABLE analyses; --", {}, ramp());
    EXPECT_EQ(database->analyses().size(), 2);
}

TEST_F(Analyses, a_removed_analysis_takes_its_curve_along_and_its_object_stays_usable) {
    const VKObject2Analysis* gone = database->addAnalysis("gone", {}, ramp());
    const qint64 key = gone->key();
    database->removeAnalysis(key);
    EXPECT_EQ(sql({"SELECT count(*) FROM curves"}).toInt(), 0);
    EXPECT_EQ(gone->name(), "gone");
    EXPECT_NE(database->addAnalysis("next", {}, ramp())->key(), key) << "keys never come again";

    MessageCollector log;
    MessageLoggerInterface::setDefaultLogger(&log);
    TAnalysisData* data = nullptr;
    EXPECT_FALSE(TechDB::TDatabase::analysisData(gone, &data));
    EXPECT_FALSE(TechDB::TDatabase::analysisData(nullptr, &data));
    EXPECT_EQ(log.messages(MessageLevel::Error).size(), 2);
    EXPECT_REFUSED(database->removeAnalysis(key), "no longer in the project");
    EXPECT_REFUSED(database->renameAnalysis(key, "x"), "no longer in the project");
}

TEST_F(Analyses, stored_curves_that_lie_about_themselves_are_refused_with_an_error) {
    if (server) {
        GTEST_SKIP() << "the server keeps to the types of its columns";
    }
    // Cut off, too long, none, a text; counts too large, below none, a text, none; one abscissa, not a
    // number.
    const QStringList tampering =
        QString("UPDATE curves SET points = substr(points, 1, 20);UPDATE curves SET points = points || x'00';"
                "UPDATE curves SET points = x'';UPDATE curves SET points = 'text';"
                "UPDATE analyses SET point_count = 2147483648;UPDATE analyses SET point_count = -3;"
                "UPDATE analyses SET point_count = 'many';UPDATE analyses SET point_count = 0;"
                "UPDATE curves SET points = zeroblob(24);"
                "UPDATE curves SET points = x'0000c07f' || zeroblob(20);DELETE FROM curves")
            .split(';');
    for (const QString& statement : tampering) {
        database.reset();
        QFile::remove(path());
        database = TechDB::TDatabase::create(path());
        const VKObject2Analysis* const analysis = database->addAnalysis("target", {}, ramp(3));
        sql({"PRAGMA ignore_check_constraints = ON", statement});
        MessageCollector log;
        MessageLoggerInterface::setDefaultLogger(&log);
        TAnalysisData* data = nullptr;
        EXPECT_FALSE(TechDB::TDatabase::analysisData(analysis, &data)) << qPrintable(statement);
        EXPECT_EQ(data, nullptr);
        EXPECT_TRUE(says(log.messages(MessageLevel::Error).join("|").toStdString(), "<b>target</b>"));
    }
    sql({"PRAGMA ignore_check_constraints = ON", "UPDATE analyses SET point_count = 0"});
    reopen();
    EXPECT_EQ(database->getAnalysis("target")->TIC(), nullptr) << "no curve, no signal";
}

TEST_F(Analyses, changes_are_announced_once_after_the_outermost_commit) {
    QSignalSpy changes(database.get(), &TechDB::TDatabase::changed);
    qint64 key = 0;
    {
        TechDB::Transaction transaction(*database);
        key = database->addAnalysis("a", {}, ramp())->key();
        database->renameAnalysis(key, "b");
        {
            TechDB::Transaction inner(*database);
            database->addAnalysis("dropped", {}, ramp());
        }
        EXPECT_EQ(changes.count(), 0);
        transaction.commit();
    }
    ASSERT_EQ(changes.count(), 1);
    const auto list = changes.at(0).at(0).value<TechDB::ObjectChanges>();
    ASSERT_EQ(list.size(), 2);
    EXPECT_EQ(list.at(0).kind, ObjectChange::Kind::Added);
    EXPECT_EQ(list.at(1).kind, ObjectChange::Kind::Renamed);
    EXPECT_EQ(list.at(1).key, key);
    EXPECT_EQ(list.at(1).type, VKObjectType::Analysis);
    EXPECT_EQ(analysisNames(), QStringList("b"));
}

TEST_F(Analyses, what_is_not_committed_leaves_neither_rows_nor_names_nor_messages) {
    const VKObject2Analysis* kept = database->addAnalysis("kept", {}, ramp());
    QSignalSpy changes(database.get(), &TechDB::TDatabase::changed);
    const VKObject2Analysis* dropped = nullptr;
    {
        TechDB::Transaction transaction(*database);
        database->renameAnalysis(kept->key(), "other");
        dropped = database->addAnalysis("dropped", {}, ramp());
    }
    EXPECT_EQ(changes.count(), 0);
    EXPECT_EQ(kept->name(), "kept");
    EXPECT_EQ(kept->TIC()->name(), "kept");
    EXPECT_EQ(analysisNames(), QStringList("kept"));
    EXPECT_NE(database->addAnalysis("new", {}, ramp()), dropped) << "an object never turns into another";
    EXPECT_EQ(dropped->name(), "dropped");
}

TEST_F(Datasets, a_sample_comes_back_as_it_was) {
    const qint64 well = database->addWell("Custom\\n import-a.xlsx'; --")->key();
    SampleTable table = twoByTwo();
    table.columnNames = QStringList{"Sample 1", "é", "c", "d"};
    table.cells = {5e-324, 0.1 + 0.2, -0.0, 1.7976931348623157e308, 1e22, "", "n.d.", "a\\'b\n\"é\U0001F600"};
    database->addSample(well, "Sample 7", table);
    database->addSample(well, "no cells", {{}, {"only a column"}, {}, {}});
    reopen();

    const TechDB::DatasetInfo info = database->datasets().at(0);
    EXPECT_EQ(info.sampleCount, 2);
    EXPECT_EQ(database->getWell("Custom\\n import-a.xlsx'; --")->key(), info.key);
    const QVector<TechDB::SampleInfo> samples = database->samples(info.key);
    ASSERT_EQ(samples.size(), 2);
    EXPECT_EQ(samples.at(0).name, "Sample 7");
    EXPECT_EQ(samples.at(0).rowCount, 2);
    EXPECT_EQ(samples.at(1).columnCount, 1);

    const SampleTable stored = database->sampleTable(samples.at(0).key);
    EXPECT_EQ(stored.rowNames, table.rowNames);
    EXPECT_EQ(stored.columnNames, table.columnNames);
    EXPECT_EQ(stored.cells, table.cells) << "an empty text isn't an empty cell";
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(stored.cells[i].toDouble(), table.cells[i].toDouble())
            << "variants don't compare to the bit";
    }
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
    for (const QString what :
         {"samples", "sample_values", "sample_rows", "sample_columns", "sample_properties"}) {
        EXPECT_EQ(sql({"SELECT count(*) FROM " + what}).toInt(), 0) << qPrintable(what);
    }
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

TEST_F(Names, come_page_by_page_in_natural_order_without_gap_or_repetition) {
    const ListedNames all = database->analysisNames({});
    EXPECT_EQ(joined(all).toStdString(), "100% a!b \u00c9cole 2 s 9 S 10 S 100 under_score");
    NameRange page;
    page.limit = 3;
    QStringList pages;
    for (ListedNames names = database->analysisNames(page); !names.isEmpty();
         names = database->analysisNames(page)) {
        pages.append(joined(names));
        page.after = names.last().place;
    }
    EXPECT_EQ(pages, QStringList({"100% a!b \u00c9cole 2", "s 9 S 10 S 100", "under_score"}));
    NameRange upTo;
    upTo.after = all.at(1).place;
    upTo.upTo = all.at(3).place;
    EXPECT_EQ(joined(database->analysisNames(upTo)), "\u00c9cole 2 s 9");
    upTo.only = all.at(4).place.key;
    EXPECT_EQ(joined(database->analysisNames(upTo)), "");
}

TEST_F(Names, are_found_by_any_part_letter_by_letter) {
    for (const QString pair : {"s 1=S 10 S 100", "%=100%", "r_s=under_score", "_=under_score", "A!B=a!b",
                               "!=a!b", "e\u0301COLE=\u00c9cole 2"}) {
        EXPECT_EQ(holding(pair.section('=', 0, 0)), pair.section('=', 1));
    }
    EXPECT_EQ(holding("' OR 1=1 --"), "");
    EXPECT_EQ(holding(QString(100'000, 'x')), "") << "longer than engines take";
}

TEST_F(Names, of_a_dataset_are_found_by_those_of_its_samples) {
    for (const QString name : {"Basin", "Ridge", "Empty"}) {
        database->addWell(name);
    }
    const qint64 ridge = database->getWell("Ridge")->key();
    for (const QString name : {"11", "2", "basin 3"}) {
        database->addSample(ridge, name, {{"r"}, {"c"}, {1.0}, {}});
    }
    NameRange basin;
    basin.part = "BASIN";
    EXPECT_EQ(joined(database->datasetNames(basin)), "Basin Ridge");
    EXPECT_EQ(joined(database->sampleNames(ridge, {})), "2 11 basin 3");
    EXPECT_EQ(joined(database->sampleNames(ridge, basin)), "basin 3");
    EXPECT_EQ(joined(database->sampleNames(ridge + 1, {})), "");
    const ListedNames all = database->datasetNames({});
    EXPECT_EQ(all.at(0).count, 0);
    EXPECT_EQ(all.at(2).count, 1);
}

TEST_F(Names, of_the_greatest_length_find_room_in_the_index) {
    // Letters that become two of three bytes each when they are folded, in no order that could be packed.
    std::mt19937 random(1);
    std::uniform_int_distribution<int> letter(0x0958, 0x095f);
    QString name;
    for (int i = 0; i < 255; ++i) {
        name += QChar(letter(random));
    }
    const qint64 dataset = database->addWell(name)->key();
    database->addSample(dataset, name, {{"r"}, {"c"}, {1.0}, {}});
    database->addAnalysis(name, {}, ramp());
    EXPECT_EQ(holding(name), name);
    EXPECT_EQ(joined(database->sampleNames(dataset, {})), name);
}

TEST_F(Names, follow_a_renaming_and_are_listed_though_not_in_order_when_another_program_wrote_them) {
    database->renameAnalysis(database->getAnalysis("S 10")->key(), "A 1");
    EXPECT_EQ(holding("s 10"), "S 100");
    EXPECT_EQ(joined(database->analysisNames({})), "100% A 1 a!b \u00c9cole 2 s 9 S 100 under_score");
    sql({"INSERT INTO datasets (name, created) VALUES ('theirs', 'never')"});
    EXPECT_EQ(joined(database->datasetNames({})), "theirs");
}

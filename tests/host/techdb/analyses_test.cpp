#include "ProjectFixture.h"

#include "MessageCollector.h"
#include "Transaction.h"

#include <QSignalSpy>

#include <cmath>
#include <cstring>
#include <limits>

using TechDB::ObjectChange;

namespace {

class Analyses : public ProjectTest {};

bool sameBits(const std::vector<float>& a, const std::vector<float>& b) {
    return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size() * sizeof(float)) == 0;
}

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
    EXPECT_EQ(sql({"SELECT " + digits + " FROM curves"}).toString(), "00000000"
                                                                     "0000803f"
                                                                     "000000c0"
                                                                     "0000003f");
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
    const QStringList tampering{"UPDATE curves SET points = substr(points, 1, 20)",       // cut off
                                "UPDATE curves SET points = points || x'00'",             // too long
                                "UPDATE curves SET points = x''",                         //
                                "UPDATE curves SET points = 'text'",                      //
                                "UPDATE analyses SET point_count = 2147483648",           // overflows
                                "UPDATE analyses SET point_count = -3",                   //
                                "UPDATE analyses SET point_count = 'many'",               //
                                "UPDATE analyses SET point_count = 0",                    //
                                "UPDATE curves SET points = zeroblob(24)",                // one abscissa
                                "UPDATE curves SET points = x'0000c07f' || zeroblob(20)", // not a number
                                "DELETE FROM curves"};
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

#include "ProjectFixture.h"

#include "Transaction.h"

#include <QProcess>
#include <QSignalSpy>

#include <chrono>
#include <future>
#include <thread>

using TechDB::TDatabase;

namespace {

class Windows : public ProjectTest {
protected:
    /// Runs the other window until it has written, then kills it without warning.
    void killAfterWriting(const QString& type) {
        QProcess writer;
        writer.start(TECHDB_WRITER, {place(), type, "60"});
        ASSERT_TRUE(writer.waitForReadyRead(60000)) << writer.readAllStandardError().constData();
        ASSERT_EQ(writer.readAll().trimmed(), "written");
        writer.kill();
        ASSERT_TRUE(writer.waitForFinished());
    }
};

/// Writes from a thread of its own, says so, and commits a while later.
void holdOpen(const QString& place, std::promise<void>& written) {
    const std::unique_ptr<TDatabase> theirs = TDatabase::open(place);
    TechDB::Transaction transaction(*theirs);
    theirs->addWell("theirs");
    written.set_value();
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
    transaction.commit();
}

/// Bytes that this process has asked its files for.
qint64 bytesRead() {
    QFile counters("/proc/self/io");
    EXPECT_TRUE(counters.open(QIODevice::ReadOnly));
    return counters.readLine().split(' ').last().trimmed().toLongLong();
}

} // namespace

TEST_F(Windows, two_of_them_on_one_file_see_what_the_other_committed) {
    const std::unique_ptr<TDatabase> other = TDatabase::open(place());
    const qint64 key = database->addAnalysis("A", {}, ramp())->key();
    const VKObject2Analysis* seen = other->getAnalysis("A");
    ASSERT_NE(seen, nullptr);
    EXPECT_EQ(seen->db(), other.get());
    {
        TechDB::Transaction transaction(*database);
        database->addAnalysis("B", {}, ramp());
        EXPECT_EQ(other->analyses().size(), 1) << "reading neither waits nor sees half of a change";
        transaction.commit();
    }
    EXPECT_EQ(other->analyses().size(), 2);
    EXPECT_REFUSED(other->addAnalysis("B", {}, ramp()), "<b>B</b> is already stored");
    other->removeAnalysis(key);
    EXPECT_EQ(sql({"SELECT count(*) FROM curves"}).toInt(), 1) << "foreign keys hold here too";
    EXPECT_EQ(analysisNames(), QStringList("B"));
}

TEST_F(Windows, a_writer_waits_for_another_one_and_gives_up_with_clear_words) {
    std::promise<void> written;
    std::thread other([&] { holdOpen(place(), written); });
    written.get_future().wait();
    database->addAnalysis("ours", {}, ramp());
    other.join();
    EXPECT_EQ(analysisNames(), QStringList("ours"));
    EXPECT_NE(database->getWell("theirs"), nullptr);

    const std::unique_ptr<TDatabase> busy = TDatabase::open(place());
    const TechDB::Transaction held(*busy);
    EXPECT_REFUSED(database->addAnalysis("late", {}, ramp()), "written by another window");
    EXPECT_EQ(analysisNames(), QStringList("ours"));
}

TEST_F(Windows, each_hears_within_two_seconds_of_what_others_commit_and_not_of_its_own) {
    const std::unique_ptr<TDatabase> other = TDatabase::open(place());
    database->followOthers();
    QSignalSpy heard(database.get(), &TDatabase::changedElsewhere);
    database->addAnalysis("ours", {}, ramp());
    EXPECT_FALSE(heard.wait(1500));
    other->addAnalysis("theirs", {}, ramp());
    EXPECT_TRUE(heard.wait(2000));
    EXPECT_EQ(heard.count(), 1);
    EXPECT_EQ(database->analyses().size(), 2);
}

TEST_F(Windows, one_that_is_killed_in_a_transaction_leaves_the_old_state) {
    database->addAnalysis("before", {}, ramp());
    database.reset();
    killAfterWriting("hold");
    reopen();
    EXPECT_EQ(analysisNames(), QStringList("before"));
    EXPECT_TRUE(database->problems().isEmpty());

    killAfterWriting("commit");
    EXPECT_EQ(database->analyses().size(), 60) << "what was committed stays, and is seen without reopening";
    reopen();
    EXPECT_EQ(database->analyses().size(), 60);
    EXPECT_EQ(database->curve(database->getAnalysis("during 59")->key()).dataSize(), 20000);
    EXPECT_TRUE(database->problems().isEmpty());
}

TEST_F(Windows, opening_and_listing_a_thousand_analyses_reads_no_curve) {
    if (server) {
        GTEST_SKIP() << "it is the server that reads";
    }
    {
        TechDB::Transaction transaction(*database);
        for (int i = 0; i < 1000; ++i) {
            database->addAnalysis(QStringLiteral("analysis %1").arg(i), "Source Rock QAQC", ramp(1264));
        }
        transaction.commit();
    }
    database.reset();
    const qint64 before = bytesRead();
    database = TDatabase::open(place());
    EXPECT_EQ(database->analyses().size(), 1000);
    const qint64 listed = bytesRead() - before;
    EXPECT_GT(QFile(path()).size(), 1000 * 1264 * 8);
    EXPECT_LT(listed, QFile(path()).size() / 20);
}

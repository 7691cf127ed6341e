#include "CuttingProxy.h"
#include "ExpectedWarning.h"
#include "FailuresFixture.h"

#include <QAbstractItemModel>
#include <QProcess>

namespace {

/// A project on the tests' server, to which the way can be cut.
class ServerFailures : public FailuresFixture {
protected:
    void SetUp() override {
        if (!server) {
            GTEST_SKIP() << "there is no server";
        }
        proxy = std::make_unique<CuttingProxy>(server->address());
        workbench->projects().create(proxy->address());
    }

    void TearDown() override {
        workbench->projects().close(); // on the way that is still there
    }

    static void control(const QString& what) {
        ASSERT_EQ(QProcess::execute(qEnvironmentVariable("VORN_TEST_SERVER_CONTROL"), {what}), 0);
    }
    /// What is there, asked for on another way.
    std::unique_ptr<TechDB::TDatabase> seen() const { return TechDB::TDatabase::open(server->address()); }

    std::unique_ptr<CuttingProxy> proxy;
};

} // namespace

TEST_F(ServerFailures, one_that_stops_in_the_middle_fails_the_rest_which_comes_in_later) {
    const QStringList paths = {rawFile("A.S00"), rawFile("B.S00"), rawFile("C.S00"), rawFile("D.S00")};
    bool stopped = false;
    const auto stopAfterTheFirst = [&] {
        if (!stopped && !messages(MessageLevel::Information).isEmpty()) {
            stopped = true;
            control("stop");
        }
    };
    const auto hook =
        QObject::connect(&workbench->log(), &QAbstractItemModel::rowsInserted, stopAfterTheFirst);
    import(paths);
    QObject::disconnect(hook);
    ASSERT_TRUE(stopped);
    EXPECT_EQ(count(VornCtrl::ImportDone, paths), 1);
    EXPECT_EQ(count(VornCtrl::ImportFailed, paths), 3);
    EXPECT_GE(errors().size(), 3);
    EXPECT_TRUE(errors().join("|").contains("connection")) << errors().join("|").toStdString();

    control("start");
    pressImport();
    EXPECT_EQ(count(VornCtrl::ImportDone, paths), 4);
    EXPECT_EQ(seen()->analyses().size(), 4);
    EXPECT_TRUE(seen()->problems().isEmpty());
}

TEST_F(ServerFailures, a_line_that_breaks_anywhere_leaves_a_dataset_whole_or_none) {
    const QString file = path("lab.xlsx");
    QVector<QVariantList> rows;
    for (int row = 0; row < 40; ++row) {
        rows.append({QString("S%1").arg(row), row * 0.5});
    }
    writeWorkbook(file, {"Sample", "TOC (wt%)"}, rows);
    int broken = 0;
    const ExpectedWarning notifier("Invalid socket"); // Qt listens on for what others commit
    for (const int bytes : {0, 40, 400, 2000, 6000, 15000, 30000}) {
        proxy->cutAfter(bytes);
        import({file});
        proxy->letPass();
        const bool failed = status(file) == VornCtrl::ImportFailed;
        broken += failed ? 1 : 0;
        const auto datasets = seen()->datasets();
        if (failed) {
            EXPECT_EQ(datasets.size(), 0) << bytes;
            EXPECT_FALSE(errors().isEmpty());
        } else {
            ASSERT_EQ(datasets.size(), 1);
            EXPECT_EQ(datasets[0].sampleCount, 41);
            seen()->removeWell(datasets[0].key);
        }
        closeModule();
    }
    EXPECT_GE(broken, 4);
    import({file});
    EXPECT_EQ(status(file), VornCtrl::ImportDone) << errors().join("|").toStdString();
    ASSERT_EQ(seen()->datasets().size(), 1);
    EXPECT_EQ(seen()->datasets()[0].sampleCount, 41);
}

#include "ExpectedWarning.h"
#include "FailuresFixture.h"

#include <QProcess>
#include <QUrl>

#include <stdexcept>

namespace {

/// A way to the tests' server that can be cut after a number of bytes.
class CuttingProxy {
public:
    explicit CuttingProxy(const QString& address) : m_address(address) {
        m_process.start("python3", {VORN_CUTTING_PROXY, QString::number(m_address.port())});
        m_address.setPort(answer().toInt());
    }
    ~CuttingProxy() {
        m_process.closeWriteChannel();
        m_process.waitForFinished();
    }

    QString address() const { return m_address.toString(); }
    void cutAfter(int bytes) { command("cut " + QByteArray::number(bytes)); }
    void letPass() { command("pass"); }

private:
    void command(const QByteArray& line) {
        m_process.write(line + '\n');
        answer();
    }
    QByteArray answer() {
        if (!m_process.canReadLine() && !m_process.waitForReadyRead()) {
            throw std::runtime_error("the proxy does not answer");
        }
        return m_process.readLine().trimmed();
    }

    QUrl m_address;
    QProcess m_process;
};

/// A project on the tests' server, to which the way can be cut.
class ServerFailures : public FailuresFixture {
protected:
    void SetUp() override {
        if (!server) {
            GTEST_SKIP() << "there is no server";
        }
        proxy = std::make_unique<CuttingProxy>(server->address());
        workbench->projects().open(proxy->address());
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
    int files = 0;
    module->onAccepted = [&](const QString&) {
        if (++files == 2) {
            control("stop");
        }
    };
    import(paths);
    EXPECT_EQ(count(VornCtrl::ImportDone, paths), 1);
    EXPECT_EQ(count(VornCtrl::ImportFailed, paths), 3);
    EXPECT_GE(errors().size(), 3);
    expectTold({"connection"});

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
    const auto found = [&] { // -1 without a dataset
        const auto datasets = seen()->datasets();
        return datasets.isEmpty() ? -1 : datasets[0].sampleCount;
    };
    int broken = 0;
    const ExpectedWarning notifier("Invalid socket"); // Qt listens on for what others commit
    for (const int bytes : {0, 40, 400, 2000, 6000, 15000, 30000}) {
        proxy->cutAfter(bytes);
        import({file});
        proxy->letPass();
        const bool failed = status(file) == VornCtrl::ImportFailed;
        broken += failed ? 1 : 0;
        EXPECT_EQ(found(), failed ? -1 : 41) << bytes;
        EXPECT_EQ(errors().isEmpty(), !failed);
        for (const auto& dataset : seen()->datasets()) {
            seen()->removeWell(dataset.key);
        }
        openAnew();
    }
    EXPECT_GE(broken, 4);
    import({file});
    EXPECT_EQ(status(file), VornCtrl::ImportDone) << told();
    EXPECT_EQ(found(), 41);
}

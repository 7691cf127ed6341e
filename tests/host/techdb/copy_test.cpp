#include "ProjectFixture.h"

using TechDB::TDatabase;

namespace {

/// Between files, or from the tests' server to a file and back.
class Copies : public ProjectTest {
protected:
    Copies() {
        for (int i = 0; i < 250; ++i) {
            database->addAnalysis(QStringLiteral("analysis %1").arg(i), "pyrolysis", ramp(3 + i % 7));
        }
        database->setOrigin(database->getAnalysis("analysis 3")->key(),
                            {"/raw/ä.S00", "0a", {"line 2: x", "y"}});
        database->removeAnalysis(database->getAnalysis("analysis 7")->key());
        for (int i = 0; i < 3; ++i) {
            const qint64 well = database->addWell(QStringLiteral("well é %1").arg(i))->key();
            for (int sample = 0; sample < 25; ++sample) {
                database->addSample(well, QStringLiteral("S%1").arg(sample),
                                    {{"r"}, {"a", "b", "c"}, {0.1 * sample, QVariant(), "<1"}, {}});
            }
        }
    }

    QString copyPlace() const { return other ? other->address() : path("copy.vornproj"); }

    std::unique_ptr<ServerDatabase> other = server ? std::make_unique<ServerDatabase>() : nullptr;
};

} // namespace

TEST_F(Copies, hold_everything_under_the_same_keys_and_take_new_objects) {
    qint64 last = 0;
    qint64 steps = 0;
    database->copyTo(copyPlace(), [&](qint64 done, qint64 total) {
        EXPECT_GE(done, last);
        last = done;
        steps = total;
    });
    EXPECT_EQ(last, steps);
    EXPECT_EQ(steps, 2 * (249 + 3 + 75));
    const auto copy = TDatabase::open(copyPlace());
    const QStringList content = contentOf(*database);
    EXPECT_FALSE(content.contains("no ramp"));
    EXPECT_EQ(contentOf(*copy), content);
    const QString back = path("back.vornproj");
    copy->backupTo(back, notShown);
    EXPECT_EQ(contentOf(*TDatabase::open(back)), content) << "there and back";
    copy->addAnalysis("one more", {}, ramp());
    EXPECT_TRUE(copy->problems().isEmpty());
    EXPECT_EQ(filesInFolder().filter(".part"), QStringList());
}

TEST_F(Copies, that_break_off_are_no_project_and_go_on_where_they_were) {
    struct Stop {};
    const auto stopsAt = [](qint64 limit) {
        return [limit](qint64 done, qint64) {
            if (done >= limit) {
                throw Stop();
            }
        };
    };
    EXPECT_THROW(database->copyTo(copyPlace(), stopsAt(300)), Stop);
    EXPECT_REFUSED(TDatabase::open(other ? copyPlace() : copyPlace() + ".part"),
                   other ? "holds no project" : "is not a project");
    database->renameAnalysis(database->getAnalysis("analysis 3")->key(), "renamed meanwhile");
    database->removeAnalysis(database->getAnalysis("analysis 200")->key());
    const auto foreign = TDatabase::create(path("foreign.vornproj"));
    EXPECT_REFUSED(foreign->copyTo(copyPlace(), notShown), "unfinished copy of another");
    EXPECT_THROW(database->copyTo(copyPlace(), stopsAt(400)), Stop);
    database->copyTo(copyPlace(), notShown);
    EXPECT_EQ(contentOf(*TDatabase::open(copyPlace())), contentOf(*database));
    if (other) {
        EXPECT_REFUSED(database->copyTo(copyPlace(), notShown), "holds a project already");
    }
}

TEST_F(Copies, show_one_state_whatever_is_committed_meanwhile) {
    const auto writer = TDatabase::open(place());
    const QStringList before = contentOf(*database);
    bool written = false;
    database->copyTo(copyPlace(), [&](qint64, qint64) {
        if (!written) {
            writer->removeAnalysis(writer->getAnalysis("analysis 240")->key());
            writer->addAnalysis("late", {}, ramp());
            written = true;
        }
    });
    EXPECT_EQ(contentOf(*TDatabase::open(copyPlace())), before);
}

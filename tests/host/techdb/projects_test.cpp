#include "MessageCollector.h"
#include "ProjectFixture.h"
#include "Transaction.h"

#include <QFileInfo>

#include <cstdlib>
#include <unistd.h>

using TechDB::ProjectSchema;
using TechDB::TDatabase;

namespace {

using Files = ProjectTest;

/// Takes from this process, while it lives, the right to write everywhere.
class OrdinaryUser {
public:
    OrdinaryUser() : m_was(geteuid()), m_dropped(m_was == 0 && setresuid(65534, 65534, 0) == 0) {}
    ~OrdinaryUser() {
        if (m_dropped && setresuid(m_was, m_was, m_was) != 0) {
            std::abort();
        }
    }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

private:
    uid_t m_was;
    bool m_dropped;
};

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

class Migration : public ProjectTest {
protected:
    void SetUp() override {
        database->addAnalysis("A", {}, ramp());
        database.reset();
        MessageLoggerInterface::setDefaultLogger(&log);
    }

    int version() const { return sql({"SELECT schema_version FROM project"}).toInt(); }
    static int versionOf(const QString& file) {
        return sql(file, {"SELECT schema_version FROM project"}).toInt();
    }

    /// Takes from the project what came with the second version and the third.
    void makeFirstVersion() const {
        QStringList statements{"DROP TABLE origins"};
        for (const QString table : {"analyses", "datasets", "samples"}) {
            statements << "DROP INDEX " + table + "_by_name"
                       << "ALTER TABLE " + table + " DROP COLUMN sort_key"
                       << "ALTER TABLE " + table + " DROP COLUMN search_name";
        }
        sql(statements << "UPDATE project SET schema_version = 1");
    }

    const ProjectSchema fifth{
        {},
        {{},
         {},
         {"ALTER TABLE analyses ADD COLUMN note TEXT", "UPDATE analyses SET note = 'from ' || name"},
         {"ALTER TABLE analyses ADD COLUMN depth {double}"}}};
    MessageCollector log;
};

} // namespace

TEST_F(Files, a_new_project_never_takes_the_place_of_a_file) {
    fileWith(path("notes.txt"), "mine");
    EXPECT_REFUSED(TDatabase::create(path("notes.txt")), "can't be created");
    EXPECT_EQ(bytesOf(path("notes.txt")), "mine");
    EXPECT_REFUSED(TDatabase::create(path("nowhere/x.vornproj")), "can't be created");
    const QString odd = path("odd #1 ?mode=ro & 100%41 é'\".vornproj");
    TDatabase::create(odd)->addAnalysis("A", {}, ramp());
    EXPECT_TRUE(QFileInfo::exists(odd));
    EXPECT_EQ(TDatabase::open(odd)->analyses().size(), 1);
}

TEST_F(Files, what_is_no_project_is_refused_and_left_alone) {
    database.reset();
    fileWith(path("text.vornproj"), QByteArray(5000, 'x'));
    fileWith(path("empty.vornproj"), {});
    sql(path("foreign.vornproj"), {"CREATE TABLE addresses (name TEXT)"});
    sql(path("alike.vornproj"),
        {"CREATE TABLE project (only_row, schema_version)", "INSERT INTO project VALUES (1, 'x')"});
    const QStringList before = filesInFolder();
    for (const char* file : {"text", "empty", "foreign", "alike"}) {
        const QString name = path(QString(file) + ".vornproj");
        const QByteArray bytes = bytesOf(name);
        EXPECT_REFUSED(TDatabase::open(name), "is not a project") << file;
        EXPECT_EQ(bytesOf(name), bytes) << file;
    }
    EXPECT_REFUSED(TDatabase::open(path("missing.vornproj")), "can't be opened");
    EXPECT_REFUSED(TDatabase::open(folder.path()), "can't be opened");
    EXPECT_EQ(filesInFolder(), before);
}

TEST_F(Files, a_project_that_may_not_be_written_is_refused_with_advice) {
    database.reset();
    QFile::setPermissions(folder.path(), QFile::Permissions(0x5555));
    QFile::setPermissions(path(), QFile::Permissions(0x6666));
    {
        const OrdinaryUser user;
        EXPECT_REFUSED(TDatabase::open(path()), "copy it to a folder of yours");
        EXPECT_REFUSED(TDatabase::create(path("new.vornproj")), "can't be created");
    }
    QFile::setPermissions(folder.path(), QFile::Permissions(0x7777));
    QFile::setPermissions(path(), QFile::Permissions(0x4444));
    {
        const OrdinaryUser user;
        EXPECT_REFUSED(TDatabase::open(path()), "can't be written");
    }
    EXPECT_EQ(filesInFolder(), QStringList("lab.vornproj"));
}

TEST_F(Files, no_damage_to_a_file_does_more_than_a_refusal) {
    for (int i = 0; i < 20; ++i) {
        database->addAnalysis(QString::number(i), {}, ramp(1264));
    }
    database->addSample(database->addWell("D")->key(), "S", {{"r"}, {"c"}, {1.0}, {}});
    database.reset();
    const QByteArray intact = bytesOf(path());
    const QString damaged = path("damaged.vornproj");
    const auto refusal = [&](const QByteArray& bytes) {
        fileWith(damaged, bytes);
        const std::string text = failure([&] { contentOf(*TDatabase::open(damaged)); });
        QFile::remove(damaged + "-wal");
        QFile::remove(damaged + "-shm");
        return text;
    };
    int refused = 0;
    int tried = 0;
    for (int place = 0; place < intact.size(); place += 2048, ++tried) {
        refused +=
            refusal(QByteArray(intact).replace(place, 512, QByteArray(512, char(0xa5)))).empty() ? 0 : 1;
        EXPECT_NE(refusal(intact.left(place)), "") << "cut at " << place;
    }
    EXPECT_GT(refused, tried / 10) << "the damage must have been met";
    EXPECT_EQ(refusal(intact), "");
}

TEST_F(Files, problems_tells_what_is_wrong_with_a_file) {
    database->addAnalysis("whole", {}, ramp(2000));
    database->addAnalysis("short", {}, ramp(2000));
    EXPECT_TRUE(database->problems().isEmpty());
    sql(path(),
        {"UPDATE curves SET points = x'00' WHERE analysis_id = 2", "DELETE FROM analyses WHERE id = 1"});
    const QStringList problems = database->problems();
    ASSERT_EQ(problems.size(), 2);
    EXPECT_TRUE(problems.at(0).contains("<b>curves</b>")) << "its curve is left behind";
    EXPECT_TRUE(problems.at(1).contains("<b>short</b>"));
}

TEST_F(Files, a_backup_is_complete_and_takes_its_place_only_then) {
    database->addAnalysis("A", {}, ramp());
    const QString copy = path("copy é.vornproj");
    fileWith(copy, "old");
    {
        const TechDB::Transaction transaction(*database);
        EXPECT_REFUSED(database->backupTo(copy, notShown), "is being written");
    }
    EXPECT_REFUSED(database->backupTo(path(), notShown), "the project itself");
    EXPECT_REFUSED(database->backupTo(path("nowhere/c"), notShown), "was not written");
    EXPECT_EQ(bytesOf(copy), "old");

    database->backupTo(copy, notShown);
    {
        const std::unique_ptr<TDatabase> opened = TDatabase::open(copy);
        EXPECT_EQ(opened->projectId(), database->projectId());
        EXPECT_EQ(opened->curve(opened->getAnalysis("A")->key()).y(), ramp().y());
        opened->addAnalysis("only in the copy", {}, ramp());
        EXPECT_REFUSED(database->backupTo(copy, notShown), "open in a window");
    }
    EXPECT_EQ(QFile::permissions(copy), QFile::permissions(path()));
    EXPECT_EQ(analysisNames(), QStringList("A"));
    database.reset();
    EXPECT_EQ(filesInFolder(), QStringList({"copy é.vornproj", "lab.vornproj"})) << "nothing is left over";
}

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

TEST_F(Migration, an_older_project_is_copied_then_brought_forward_step_by_step) {
    const QString backup = path("lab.version-3.vornproj");
    {
        const std::unique_ptr<TDatabase> opened = TDatabase::open(path(), fifth);
        EXPECT_EQ(opened->analyses().size(), 1);
    }
    EXPECT_EQ(version(), 5);
    EXPECT_EQ(sql(path(), {"SELECT note || coalesce(depth, '!') FROM analyses"}).toString(), "from A!");
    EXPECT_EQ(versionOf(backup), 3);
    EXPECT_EQ(TDatabase::open(backup)->analyses().size(), 1);
    EXPECT_TRUE(
        says(log.messages(MessageLevel::Information).join("|").toStdString(), "lab.version-3.vornproj"));

    TDatabase::open(path(), fifth);
    EXPECT_EQ(filesInFolder(), QStringList({"lab.version-3.vornproj", "lab.vornproj"})) << "no second backup";
}

TEST_F(Migration, a_step_that_fails_leaves_the_project_as_it_was_and_names_the_copy) {
    fileWith(path("lab.version-3.vornproj"), "somebody else's");
    const ProjectSchema broken{
        {}, {{}, {}, {"ALTER TABLE analyses ADD COLUMN note TEXT", "UPDATE absent SET x = 1"}}};
    const std::string text = failure([&] { TDatabase::open(path(), broken); });
    EXPECT_TRUE(says(text, "is as it was"));
    EXPECT_TRUE(says(text, "no such table: absent"));
    EXPECT_TRUE(says(text, "lab.version-3-2.vornproj"));
    EXPECT_EQ(version(), 3);
    EXPECT_EQ(sql(path(), {"SELECT count(*) FROM pragma_table_info('analyses') WHERE name = 'note'"}).toInt(),
              0);
    EXPECT_EQ(bytesOf(path("lab.version-3.vornproj")), "somebody else's");
    EXPECT_EQ(TDatabase::open(path())->analyses().size(), 1);
}

TEST_F(Migration, a_newer_project_is_refused_and_not_touched) {
    sql(path(), {"UPDATE project SET schema_version = 7"});
    const QByteArray bytes = bytesOf(path());
    const std::string text = failure([&] { TDatabase::open(path()); });
    EXPECT_TRUE(says(text, "saved by a newer version"));
    EXPECT_TRUE(says(text, "format is 7, this version knows formats up to 3"));
    EXPECT_EQ(bytesOf(path()), bytes);
    EXPECT_EQ(filesInFolder(), QStringList("lab.vornproj"));
}

TEST_F(Migration, a_project_of_the_first_version_gets_the_order_of_its_names) {
    reopen();
    const qint64 set = database->addWell("Set")->key();
    for (const QString name : {"S 10", "s 9"}) {
        database->addSample(set, name, {{"r"}, {"c"}, {1.0}, {}});
        database->addAnalysis(name, {}, ramp());
    }
    database.reset();
    makeFirstVersion();
    reopen();
    if (!server) {
        EXPECT_EQ(versionOf(path("lab.version-1.vornproj")), 1);
    }
    EXPECT_EQ(version(), 3);
    EXPECT_EQ(joined(database->analysisNames({})), "A s 9 S 10");
    EXPECT_EQ(joined(database->sampleNames(set, {})), "s 9 S 10");
    TechDB::NameRange part;
    part.part = "S 1";
    EXPECT_EQ(joined(database->datasetNames(part)), "Set");
    EXPECT_FALSE(database->origin(1)) << "nobody noted it then";
    database->setOrigin(1, {"a.S00", "01", {}});
    EXPECT_EQ(database->origin(1)->file, "a.S00");
}

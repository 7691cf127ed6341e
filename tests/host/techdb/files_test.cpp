#include "ProjectFixture.h"

#include "Transaction.h"

#include <QFileInfo>

#include <cstdlib>
#include <unistd.h>

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
    const QStringList content = contentOf(*TDatabase::open(path()));
    QStringList found;
    const auto refusal = [&](const QByteArray& bytes) {
        fileWith(damaged, bytes);
        const std::string text = failure([&] { found = contentOf(*TDatabase::open(damaged)); });
        QFile::remove(damaged + "-wal");
        QFile::remove(damaged + "-shm");
        return text;
    };
    int refused = 0;
    int tried = 0;
    for (int place = 0; place < intact.size(); place += 2048, ++tried) {
        refused +=
            refusal(QByteArray(intact).replace(place, 512, QByteArray(512, char(0xa5)))).empty() ? 0 : 1;
        // The engine reads a page that lacks its end as if zeros followed, which is well if nothing stood
        // there.
        EXPECT_TRUE(!refusal(intact.left(place)).empty() || found == content) << "cut at " << place;
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

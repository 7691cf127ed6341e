#include "ProjectFixture.h"

#include "MessageCollector.h"

using TechDB::ProjectSchema;
using TechDB::TDatabase;

namespace {

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

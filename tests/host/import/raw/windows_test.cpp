#include "RawFixture.h"

#include <QProcess>

namespace {

class ImportWindows : public RawTest {
protected:
    void start(QProcess& writer, int count, int height) const {
        writer.start(IMPORT_WRITER, {path("import"), path("lab.vornproj"), "X.S00", QString::number(count),
                                     QString::number(height)});
    }
};

} // namespace

TEST_F(ImportWindows, are_never_given_the_same_name) {
    const auto other = VKDatabaseImport::open(path("import"));
    QString ours = "X.S00";
    QString theirs = "X.S00";
    ASSERT_TRUE(imports->addNewAnalysisPath(ours, false));
    ASSERT_TRUE(other->addNewAnalysisPath(theirs, false));
    EXPECT_EQ(ours, "X.S00");
    EXPECT_EQ(theirs, "X.S00 (2)");
    imports.reset(); // gives its name back
    QString again = "X.S00";
    ASSERT_TRUE(other->addNewAnalysisPath(again, false));
    EXPECT_EQ(again, "X.S00");
}

TEST_F(ImportWindows, that_import_at_once_both_succeed) {
    QProcess first;
    QProcess second;
    start(first, 40, 1);
    start(second, 40, 2);
    ASSERT_TRUE(first.waitForFinished(60000) && second.waitForFinished(60000));
    EXPECT_EQ(first.exitCode(), 0) << first.readAllStandardError().constData();
    EXPECT_EQ(second.exitCode(), 0) << second.readAllStandardError().constData();
    EXPECT_EQ(imports->analyses().size(), 80);
    EXPECT_EQ(project->analyses().size(), 80);
    EXPECT_TRUE(imports->problems().isEmpty());
}

TEST_F(ImportWindows, that_are_killed_anywhere_leave_nothing_in_the_way) {
    imports.reset();
    for (int round = 0; round < 12; ++round) {
        QProcess writer;
        start(writer, 10000, round);
        ASSERT_TRUE(writer.waitForReadyRead(60000));
        writer.waitForFinished(round); // some milliseconds, each time others
        writer.kill();
        ASSERT_TRUE(writer.waitForFinished());
    }
    imports = VKDatabaseImport::open(path("import"));
    EXPECT_EQ(QDir(path("import/sessions")).entryList(QDir::Files).size(), 1) << "that of this window";
    const int before = imports->analyses().size();
    EXPECT_GE(before, 12);
    EXPECT_TRUE(imports->problems().isEmpty()) << "no row without its file";
    QString name = "X.S00";
    ASSERT_TRUE(imports->addNewAnalysisPath(name, false));
    EXPECT_EQ(name, QStringLiteral("X.S00 (%1)").arg(before + 1)) << "no name is lost";
    EXPECT_TRUE(stored("Y.S00"));
    EXPECT_TRUE(project->problems().isEmpty());
    EXPECT_EQ(errors(), "");
}

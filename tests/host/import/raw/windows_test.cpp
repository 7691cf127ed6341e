#include "RawFixture.h"

#include <QProcess>

namespace {

class ImportWindows : public RawTest {
protected:
    void start(QProcess& writer, int count, int height) const {
        writer.start(IMPORT_WRITER, {folder.path(), QString::number(count), QString::number(height)});
    }
};

} // namespace

TEST_F(ImportWindows, that_import_at_once_both_succeed) {
    QProcess first;
    QProcess second;
    start(first, 40, 1);
    start(second, 40, 2);
    ASSERT_TRUE(first.waitForFinished(60000) && second.waitForFinished(60000));
    EXPECT_EQ(first.exitCode() + second.exitCode(), 0)
        << (first.readAllStandardError() + second.readAllStandardError()).constData();
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
    EXPECT_TRUE(imports->problems().isEmpty()) << "no row without its file";
    const int before = imports->analyses().size();
    EXPECT_GE(before, 12);
    const VKObject2Analysis* const next = imported("X.S00", -1.0F);
    ASSERT_NE(next, nullptr);
    EXPECT_EQ(next->name(), QStringLiteral("X.S00 (%1)").arg(before + 1)) << "no name is lost";
    EXPECT_TRUE(imports->objectPush(project.get(), next));
    EXPECT_EQ(told(), "");
}

#include "DropGroups.h"
#include "FileSorter.h"
#include "FolderWalk.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <sys/stat.h>

namespace {

class Sorter : public testing::Test {
protected:
    QString write(const QString& name, const QByteArray& content) const {
        const QString path = folder.filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        file.open(QIODevice::WriteOnly);
        file.write(content);
        return path;
    }
    static SortedFile example(const QString& name) {
        return FileSorter::sort(QStringLiteral(VORN_EXAMPLES "/") + name);
    }
    SortedFile sorted(const QString& name, const QByteArray& content) const {
        return FileSorter::sort(write(name, content));
    }
    QStringList namesIn(const FolderWalk& walk) const {
        QStringList names;
        for (const QString& path : walk.files()) {
            names.append(QDir(folder.path()).relativeFilePath(path));
        }
        return names;
    }

    const QTemporaryDir folder;
};

} // namespace

TEST_F(Sorter, tables_go_to_the_module_that_knows_most_of_their_columns_in_either_language_and_format) {
    for (const char* suffix : {".xlsx", ".xls"}) {
        EXPECT_EQ(example(QStringLiteral("tables/source-rock") + suffix).kind, FileKind::SourceRockTable);
        EXPECT_EQ(example(QStringLiteral("tables/source-rock-french") + suffix).kind,
                  FileKind::SourceRockTable);
        EXPECT_EQ(example(QStringLiteral("tables/gas") + suffix).kind, FileKind::GasTable);
        EXPECT_EQ(example(QStringLiteral("tables/custom") + suffix).kind, FileKind::OtherTable);
    }
    EXPECT_EQ(example("good-trailing-tabs-01.s00").kind, FileKind::Raw);
    EXPECT_EQ(example("good-clean-01.R00").kind, FileKind::Raw);
}

TEST_F(Sorter, names_that_lie_are_seen_through_and_every_stranger_is_told_why_and_what_to_do) {
    const QByteArray raw = "[Curves pyro]\r\n0\t100\t5\r\n";
    EXPECT_TRUE(sorted("renamed.txt", raw).reason.contains(".S00"));
    EXPECT_TRUE(sorted("fake.xlsx", "no workbook").reason.contains("no Excel workbook"));
    EXPECT_TRUE(sorted("fake.S00", QByteArray("\0\1\2", 3)).reason.contains("square brackets"));
    EXPECT_TRUE(sorted("fake.vornproj", "no database").reason.contains("no project"));
    EXPECT_TRUE(sorted("table.csv", "a,b\n1,2\n").reason.contains(".xlsx"));
    EXPECT_TRUE(sorted("all.zip", "PK\3\4").reason.contains("unpack"));
    EXPECT_TRUE(sorted("~$open.xlsx", "user").reason.contains("open workbook"));
    EXPECT_TRUE(sorted("empty.S00", "").reason.contains("empty"));
    EXPECT_TRUE(sorted("photo.png", "\x89PNG").reason.contains("no module"));
    EXPECT_TRUE(FileSorter::sort(folder.filePath("gone.S00")).reason.contains("does not exist"));
    EXPECT_EQ(sorted("damaged.xlsx", "PK\3\4 and no more").kind, FileKind::OtherTable)
        << "its import tells what is wrong";
}

TEST_F(Sorter, a_walk_takes_each_file_once_in_natural_order_and_ends_in_links_pipes_and_limits) {
    write("b/curve10.S00", "x");
    write("b/curve2.S00", "x");
    write("b/.hidden", "x");
    write("a.txt", "x");
    QDir().mkpath(folder.filePath("b/nothing"));
    QFile::link(folder.path(), folder.filePath("b/up")); // a walk that followed it wouldn't end
    ASSERT_EQ(mkfifo(QFile::encodeName(folder.filePath("b/pipe")).constData(), 0600), 0);

    const FolderWalk walk({folder.filePath("b/curve10.S00"), folder.path()});
    EXPECT_EQ(namesIn(walk), QStringList({"b/curve10.S00", "a.txt", "b/curve2.S00", "b/pipe"}));
    ASSERT_EQ(walk.refused().size(), 2);
    EXPECT_TRUE(walk.refused()[0].reason.contains("empty"));
    EXPECT_TRUE(walk.refused()[1].reason.contains("link"));
    EXPECT_TRUE(FileSorter::sort(folder.filePath("b/pipe")).reason.contains("no regular file"));

    const FolderWalk limited({folder.path()}, 2);
    EXPECT_EQ(limited.files().size(), 2);
    EXPECT_TRUE(limited.refused().last().reason.contains("looked at")) << "the limit is told";
}

TEST_F(Sorter, a_project_among_other_files_is_left_out_unless_someone_says_otherwise) {
    const SortedFile project{"lab.vornproj", FileKind::Project, {}};
    const SortedFile raw{"a.S00", FileKind::Raw, {}};
    EXPECT_EQ(DropGroups({project}).onlyProject(), "lab.vornproj");
    EXPECT_EQ(DropGroups({project, raw}).onlyProject(), "");
    EXPECT_EQ(DropGroups({project, raw}).offersFor(FileKind::Project).first(), DropChoice::Target::LeaveOut);
    EXPECT_FALSE(DropGroups({{"a.txt", FileKind::Unknown, "x"}}).offersAnything());
}

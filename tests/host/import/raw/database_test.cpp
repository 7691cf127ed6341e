#include "RawFixture.h"

#include "ImportedName.h"
#include "TcmFile.h"

#include <QProcess>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>

#include <limits>
#include <sys/stat.h>
#include <unistd.h>

using ImportSteps::tcmPath;

namespace {

class ImportDatabase : public RawTest {
protected:
    void start(QProcess& writer, int count, int height) const {
        writer.start(IMPORT_WRITER, {folder.path(), QString::number(count), QString::number(height)});
    }
};

} // namespace

TEST_F(ImportDatabase, takes_the_same_curve_once_and_numbers_another_one) {
    const VKObject2Analysis* const first = imported("X.S00");
    EXPECT_EQ(imported("X.S00"), first);
    EXPECT_EQ(told(MessageLevel::Information), "");
    EXPECT_EQ(imported("X.S00", 4.0F)->name(), "X.S00 (2)");
    EXPECT_TRUE(says(told(MessageLevel::Information),
                     "<b>X.S00</b> was imported before; this one is imported as <b>X.S00 (2)</b>"));
    imports.reset();
    imports = VKDatabaseImport::open(path("import"));
    EXPECT_EQ(imported("X.S00", 4.0F)->name(), "X.S00 (2)");
    EXPECT_EQ(imported("X.S00", 5.0F)->name(), "X.S00 (3)");
    EXPECT_EQ(imported("x.S00", 4.0F)->name(), "x.S00") << "letter by letter";
    EXPECT_EQ(names(*imports), QStringList({"X.S00", "X.S00 (2)", "X.S00 (3)", "x.S00"}));
    EXPECT_EQ(QDir(path("import/analyses")).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), 4);
}

TEST_F(ImportDatabase, takes_a_curve_into_the_project_once_and_under_a_free_name) {
    EXPECT_TRUE(stored("X.S00") && stored("X.S00"));
    EXPECT_EQ(names(*project), QStringList("X.S00"));
    EXPECT_TRUE(says(told(MessageLevel::Information), "<b>X.S00</b> is in the project"));
    EXPECT_FALSE(project->canPushObject(project->getAnalysis("X.S00"), nullptr, nullptr, nullptr));
    project->renameAnalysis(project->getAnalysis("X.S00")->key(), "100 %1.S00");
    EXPECT_TRUE(stored("100 %1.S00", 7.0F) && stored("100 %1.S00", 7.0F) && stored("100 %1.S00", 8.0F));
    EXPECT_EQ(names(*project), QStringList({"100 %1.S00", "100 %1.S00 (2)", "100 %1.S00 (3)"}));
    EXPECT_TRUE(says(told(MessageLevel::Information),
                     "<b>100 %1.S00</b> stands in the project as <b>100 %1.S00 (2)</b>"));
}

TEST_F(ImportDatabase, refuses_what_no_module_could_work_with_and_leaves_the_name_free) {
    std::vector<float> x{0.0F, 1.0F, 2.0F};
    std::vector<float> hole{0.0F, std::numeric_limits<float>::quiet_NaN(), 1.0F};
    const std::vector<std::tuple<QList<float*>, int, std::string>> refused{
        {{x.data(), x.data()}, 0, "has no points"},
        {{x.data(), x.data()}, 1, "same abscissa"},
        {{x.data(), hole.data()}, 3, "point 2 holds"},
        {{x.data(), nullptr}, 3, "3 abscissae and 0 ordinates"},
        {{x.data()}, 3, "3 abscissae and 0 ordinates"}};
    for (const auto& [channels, count, reason] : refused) {
        QString name = "X.S00";
        EXPECT_FALSE(ImportSteps::written(*imports, name, channels, count));
        EXPECT_TRUE(says(told(), reason));
        EXPECT_EQ(name, "X.S00");
        EXPECT_FALSE(imports->analysisObjectSave(name));
    }
    EXPECT_TRUE(project->canPushObject(nullptr, nullptr, nullptr, nullptr))
        << "else null would count as stored";
    EXPECT_FALSE(imports->objectPush(project.get(), nullptr));
    EXPECT_FALSE(imports->objectPush(nullptr, imported("X.S00")));
    EXPECT_TRUE(stored("X.S00"));
    EXPECT_EQ(names(*project), QStringList("X.S00"));
}

TEST_F(ImportDatabase, makes_hostile_names_harmless) {
    const uint before = QDir(folder.path()).count();
    const QString longest = QString(300, QChar(0x20ac)) + ".S00";
    const QStringList hostile = QString("../../X.S00|/etc/passwd|..||a\\b.S00|a\nb.S00| ").split('|')
                                << longest << QString(QChar(0xd800)) + ".S00"
                                << QString("a") + QChar(0) + "b.S00";
    for (const QString& name : hostile) {
        EXPECT_TRUE(stored(name)) << qPrintable(name);
    }
    EXPECT_TRUE(says(told(MessageLevel::Information),
                     "<b>../../X.S00</b> can't be the name of an analysis; it is "
                     "imported as <b>.._.._X.S00</b>"));
    EXPECT_EQ(QDir(folder.path()).count(), before);
    for (const QString& name : names(*imports)) {
        EXPECT_TRUE(QFile::exists(tcmPath(*imports, name))) << qPrintable(name);
    }
    EXPECT_TRUE(ImportedName::safe(longest).endsWith(".S00"));
    EXPECT_EQ(ImportedName::safe("..a b & <c> (2).S00"), "..a b & <c> (2).S00");

    QString name = "Y.S00";
    EXPECT_TRUE(imports->addNewAnalysisPath(name, false));
    for (const QString& to :
         {path("Y.S00.tcm"), tcmPath(*imports, "Z"), tcmPath(*imports, "Y.S00/../../../Y.S00")}) {
        EXPECT_FALSE(imports->writeAnalysisFile(to, {}, 0, 0, 1, {}, nullptr));
        EXPECT_TRUE(says(told(), "no analysis was announced"));
    }
}

TEST_F(ImportDatabase, tells_of_a_damaged_file_and_takes_it_again) {
    const VKObject2Analysis* const analysis = imported("X.S00");
    write("import/analyses/X.S00/X.S00.tcm", "TavrelCM");
    EXPECT_FALSE(imports->objectPush(project.get(), analysis));
    EXPECT_TRUE(says(told(), "cut off"));
    TcmFile("other", {{0.0F, 1.0F}, {1.0F, 3.0F}}).write(tcmPath(*imports, "X.S00"));
    EXPECT_FALSE(imports->objectPush(project.get(), analysis)) << "a whole file, but another one";
    EXPECT_EQ(imports->problems().size(), 1);
    EXPECT_TRUE(stored("X.S00"));
    EXPECT_EQ(names(*imports), QStringList("X.S00")) << "no number for a curve that is lost";
    ASSERT_TRUE(QDir(path("import/analyses")).removeRecursively());
    EXPECT_TRUE(stored("X.S00"));
    EXPECT_EQ(names(*project), QStringList("X.S00"));
}

TEST_F(ImportDatabase, an_index_made_elsewhere_does_not_lead_out_of_its_folder) {
    const qint64 key = imported("X.S00")->key();
    imports.reset();
    {
        QSqlDatabase index = QSqlDatabase::addDatabase("QSQLITE", "elsewhere");
        index.setDatabaseName(path("import/index.vornimport"));
        ASSERT_TRUE(index.open());
        QSqlQuery query("UPDATE analyses SET name = '../../x'", index);
        ASSERT_EQ(query.numRowsAffected(), 1) << query.lastError().text().toStdString();
    }
    QSqlDatabase::removeDatabase("elsewhere");
    imports = VKDatabaseImport::open(path("import"));
    EXPECT_THROW(imports->curve(key), VKError);
    EXPECT_FALSE(imports->objectPush(project.get(), imports->analysisByKey(key)));
    EXPECT_TRUE(says(told(), "<b>../../x</b> can't be that of an imported curve"));
    EXPECT_EQ(names(*project), QStringList());
}

TEST_F(ImportDatabase, names_and_curves_come_from_files_alone) {
    const VKObject2Analysis* const analysis = imported("X.S00");
    EXPECT_THROW(imports->renameAnalysis(analysis->key(), "Y.S00"), VKError);
    EXPECT_THROW(imports->addAnalysis("Y.S00", "type", {{0.0F, 1.0F}, {1.0F, 3.0F}}), VKError);
    EXPECT_EQ(names(*imports), QStringList("X.S00"));
}

TEST_F(ImportDatabase, that_cannot_be_written_says_so) {
    QFile blocked(write("import/analyses", {}));
    EXPECT_EQ(imported("Y.S00"), nullptr);
    EXPECT_TRUE(says(told(), "Y.S00.tcm</b> can't be written"));
    ASSERT_TRUE(blocked.remove());
    EXPECT_EQ(imported("Y.S00")->name(), "Y.S00");

    imports.reset();
    ASSERT_EQ(chmod(qPrintable(folder.path()), 0755) + chmod(qPrintable(path("import")), 0555), 0);
    const uid_t user = geteuid();
    ASSERT_TRUE(user != 0 || seteuid(65534) == 0); // an ordinary user, to whom rights apply
    EXPECT_THROW(VKDatabaseImport::open(path("import")), VKError);
    ASSERT_EQ(seteuid(user), 0);
    ASSERT_EQ(chmod(qPrintable(path("import")), 0755), 0);
}

TEST_F(ImportDatabase, takes_what_two_windows_import_at_once) {
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

TEST_F(ImportDatabase, has_nothing_in_the_way_of_windows_that_were_killed_anywhere) {
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

#include "RawFixture.h"

#include "ImportedName.h"
#include "TcmFile.h"
#include "VKObject2Signal.h"

#include <cmath>
#include <cstdlib>
#include <limits>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

class ImportDatabase : public RawTest {
protected:
    std::string information() const {
        return log.messages(MessageLevel::Information).join('|').toStdString();
    }

    void damage(const QString& name) {
        QFile file(tcmPath(*imports, name));
        ASSERT_TRUE(file.open(QIODevice::ReadWrite) && file.seek(file.size() - 40));
        file.write("!");
    }

    void reopen() {
        imports.reset();
        imports = VKDatabaseImport::open(path("import"));
    }
};

} // namespace

TEST_F(ImportDatabase, keeps_the_curve_in_its_file_alone) {
    const VKObject2Analysis* const analysis = imported("X.S00");
    ASSERT_NE(analysis, nullptr);
    EXPECT_EQ(analysis->name(), "X.S00");
    EXPECT_EQ(imports->rootFolder(), path("import"));
    EXPECT_TRUE(QFile::exists(path("import/analyses/X.S00/X.S00.tcm")));
    EXPECT_EQ(imports->analyses().first().pointCount, 3);
    TAnalysisData* data = nullptr;
    ASSERT_TRUE(TechDB::TDatabase::analysisData(analysis->TIC(), &data));
    EXPECT_EQ(data->y(), (std::vector<float>{1.0F, 3.0F, 1.0F}));
    EXPECT_THROW(imports->addAnalysis("Y", {}, *data), VKError);
    EXPECT_THROW(imports->renameAnalysis(analysis->key(), "Y"), VKError);
    EXPECT_TRUE(imports->problems().isEmpty());

    TcmFile("other", {{0.0F, 1.0F, 2.0F}, {1.0F, 3.0F, 1.0F}}).write(tcmPath(*imports, "X.S00"));
    EXPECT_THROW(imports->curve(analysis->key()), VKError) << "a whole file, but another one";
    EXPECT_EQ(imports->problems().size(), 1);
    imports->removeAnalysis(analysis->key());
    EXPECT_THROW(imports->curve(analysis->key()), VKError);
}

TEST_F(ImportDatabase, takes_the_same_curve_once_and_numbers_another_one) {
    const VKObject2Analysis* const first = imported("X.S00");
    EXPECT_EQ(information(), "");
    EXPECT_EQ(imported("X.S00"), first);
    const VKObject2Analysis* const second = imported("X.S00", 4.0F);
    ASSERT_NE(second, nullptr);
    EXPECT_EQ(second->name(), "X.S00 (2)");
    EXPECT_TRUE(
        says(information(), "<b>X.S00</b> was imported before; this one is imported as <b>X.S00 (2)</b>"));
    reopen();
    EXPECT_EQ(imported("X.S00", 4.0F)->name(), "X.S00 (2)");
    EXPECT_EQ(imported("X.S00", 5.0F)->name(), "X.S00 (3)");
    EXPECT_EQ(imported("x.S00", 4.0F)->name(), "x.S00") << "letter by letter";
    EXPECT_EQ(names(*imports), QStringList({"X.S00", "X.S00 (2)", "X.S00 (3)", "x.S00"}));
    EXPECT_EQ(QDir(path("import/analyses")).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), 4);
}

TEST_F(ImportDatabase, takes_a_curve_into_the_project_once_and_under_a_free_name) {
    EXPECT_TRUE(stored("X.S00"));
    EXPECT_TRUE(stored("X.S00"));
    EXPECT_EQ(names(*project), QStringList("X.S00"));
    EXPECT_EQ(information(), "");

    project->renameAnalysis(project->getAnalysis("X.S00")->key(), "Y.S00");
    EXPECT_TRUE(stored("Y.S00", 7.0F));
    EXPECT_TRUE(stored("Y.S00", 7.0F));
    EXPECT_EQ(names(*project), QStringList({"Y.S00", "Y.S00 (2)"}));
    EXPECT_TRUE(says(information(), "<b>Y.S00</b> stands in the project as <b>Y.S00 (2)</b>"));
    EXPECT_EQ(names(*imports), QStringList({"X.S00", "Y.S00"}));
}

TEST_F(ImportDatabase, refuses_what_no_module_could_work_with_and_leaves_the_name_free) {
    const float infinite = std::numeric_limits<float>::infinity();
    std::vector<float> x{0.0F, 1.0F, 2.0F};
    std::vector<float> level{1.0F, 1.0F, 1.0F};
    std::vector<float> hole{0.0F, std::nanf(""), infinite};
    struct Refused {
        QList<float*> channels;
        int count;
        int ordinate;
        std::string reason;
    };
    const std::vector<Refused> all{{{x.data(), x.data()}, 0, 1, "has no points"},
                                   {{x.data(), x.data()}, -7, 1, "has no points"},
                                   {{x.data(), x.data()}, 1, 1, "same abscissa"},
                                   {{level.data(), x.data()}, 3, 1, "same abscissa"},
                                   {{x.data(), hole.data()}, 3, 1, "point 2 holds a value"},
                                   {{x.data(), nullptr}, 3, 1, "3 abscissae and 0 ordinates"},
                                   {{x.data(), x.data()}, 3, 2, "3 abscissae and 0 ordinates"}};
    for (const Refused& one : all) {
        MessageCollector own;
        QString name = "X.S00";
        ASSERT_TRUE(imports->addNewAnalysisPath(name, false));
        EXPECT_EQ(name, "X.S00");
        EXPECT_FALSE(imports->writeAnalysisFile(tcmPath(*imports, name), one.channels, one.count, 0,
                                                one.ordinate, {}, &own));
        EXPECT_TRUE(says(own.messages(MessageLevel::Error).join('|').toStdString(), one.reason));
        EXPECT_FALSE(imports->analysisObjectSave(name));
        EXPECT_EQ(imports->getAnalysis(name), nullptr);
    }
    log.clear();
    EXPECT_TRUE(project->canPushObject(nullptr, nullptr, nullptr, nullptr))
        << "else null would count as stored";
    EXPECT_FALSE(imports->objectPush(project.get(), nullptr));
    EXPECT_FALSE(imports->objectPush(nullptr, imported("X.S00")));
    EXPECT_EQ(log.messages(MessageLevel::Error).size(), 2);
    EXPECT_TRUE(stored("X.S00"));
    EXPECT_EQ(names(*project), QStringList("X.S00"));
}

TEST_F(ImportDatabase, writes_to_no_path_but_that_of_a_name_given_out) {
    std::vector<float> x{0.0F, 1.0F};
    QString name = "X.S00";
    ASSERT_TRUE(imports->addNewAnalysisPath(name, false));
    const QString right = tcmPath(*imports, name);
    for (const QString& wrong : {path("X.S00.tcm"), tcmPath(*imports, "Y.S00"), QString(right).remove(".tcm"),
                                 tcmPath(*imports, "X.S00/../../../X.S00"), QString()}) {
        EXPECT_FALSE(imports->writeAnalysisFile(wrong, {x.data(), x.data()}, 2, 0, 1, {}, nullptr));
    }
    EXPECT_TRUE(says(errors(), "no analysis was announced"));
    EXPECT_FALSE(QFile::exists(path("X.S00.tcm")));
    EXPECT_TRUE(imports->writeAnalysisFile(right, {x.data(), x.data()}, 2, 0, 1, {}, nullptr));
    ASSERT_TRUE(imports->addNewAnalysisPath(name, false));
    EXPECT_EQ(name, "X.S00 (2)") << "a name is given out once";
    EXPECT_TRUE(imports->analysisObjectSave("X.S00"));
    EXPECT_FALSE(imports->analysisObjectSave("X.S00"));
}

TEST_F(ImportDatabase, makes_hostile_names_harmless) {
    const QStringList before = QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    const QString longest(300, QChar(0x20ac));
    const QStringList hostile{"../../X.S00",
                              "/etc/passwd",
                              "..",
                              ".",
                              "",
                              "a\\b.S00",
                              "a\nb.S00",
                              " ",
                              longest + ".S00",
                              QString(QChar(0xd800)) + ".S00",
                              QString("a") + QChar(0) + "b.S00"};
    for (const QString& name : hostile) {
        EXPECT_TRUE(stored(name)) << qPrintable(name);
    }
    EXPECT_TRUE(says(information(), "<b>../../X.S00</b> can't be the name of an analysis; it is imported as "
                                    "<b>.._.._X.S00</b>"));
    EXPECT_EQ(errors(), "");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), before);
    EXPECT_EQ(QDir(path("import")).entryList(QDir::Dirs | QDir::NoDotAndDotDot),
              QStringList({"analyses", "sessions"}));
    for (const QString& name : names(*imports)) {
        EXPECT_TRUE(QFile::exists(tcmPath(*imports, name))) << qPrintable(name);
    }
    const QString cut = ImportedName::safe(longest + ".S00");
    EXPECT_LE(cut.toUtf8().size(), ImportedName::maximumBytes);
    EXPECT_TRUE(cut.endsWith(".S00"));
    for (const QString harmless : {"X.S00", "a b & <c>.S00", "..x", "X.S00 (2)"}) {
        EXPECT_EQ(ImportedName::safe(harmless), harmless);
    }
}

TEST_F(ImportDatabase, tells_of_a_damaged_file_and_takes_it_again) {
    const VKObject2Analysis* const analysis = imported("X.S00");
    damage("X.S00");
    EXPECT_FALSE(imports->objectPush(project.get(), analysis));
    EXPECT_TRUE(says(errors(), "altered or cut off"));
    EXPECT_TRUE(project->analyses().isEmpty());
    EXPECT_TRUE(stored("X.S00"));
    EXPECT_EQ(names(*imports), QStringList("X.S00")) << "no number for a curve that is lost";

    ASSERT_TRUE(QDir(path("import/analyses")).removeRecursively());
    EXPECT_TRUE(stored("X.S00", 5.0F));
    EXPECT_EQ(names(*project), QStringList({"X.S00", "X.S00 (2)"}));
}

TEST_F(ImportDatabase, that_cannot_be_written_says_so) {
    const VKObject2Analysis* const analysis = imported("X.S00");
    ASSERT_NE(analysis, nullptr);
    QFile blocked(path("import/analyses/Y.S00"));
    ASSERT_TRUE(blocked.open(QIODevice::WriteOnly)); // a file where a folder has to be
    EXPECT_EQ(imported("Y.S00"), nullptr);
    EXPECT_TRUE(says(errors(), "Y.S00.tcm</b> can't be written"));
    ASSERT_TRUE(blocked.remove());
    ASSERT_NE(imported("Y.S00"), nullptr);
    EXPECT_EQ(names(*imports), QStringList({"X.S00", "Y.S00"}));

    imports.reset();
    const QString other = write("file", "");
    try {
        VKDatabaseImport::open(other);
        FAIL();
    } catch (const VKError& error) {
        EXPECT_TRUE(says(error.text().toStdString(), "can't be used"));
    }
    ASSERT_EQ(chmod(qPrintable(path("import")), 0555), 0);
    ASSERT_EQ(chmod(qPrintable(folder.path()), 0755), 0);
    const pid_t child = fork();
    if (child == 0) { // as an ordinary user, whose rights count
        if (getuid() == 0 && setuid(65534) != 0) {
            _exit(2);
        }
        try {
            VKDatabaseImport::open(path("import"));
        } catch (const VKError&) {
            _exit(0);
        }
        _exit(1);
    }
    int status = -1;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    ASSERT_EQ(chmod(qPrintable(path("import")), 0755), 0);
}

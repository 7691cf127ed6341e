#include "FailuresFixture.h"
#include "FullDisk.h"
#include "OtherWriter.h"
#include "SmallDisk.h"

#include <QElapsedTimer>
#include <QRandomGenerator>

#include <functional>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int page = 4096; // what databases and disks give room by

QByteArray exchanged(QByteArray bytes, const QByteArray& before, const QByteArray& after) {
    EXPECT_TRUE(bytes.contains(before));
    return bytes.replace(before, after);
}

/// The container with its workbook under the name that a workbook under a password has.
QByteArray locked(const QByteArray& book) {
    const QByteArray name("W\0o\0r\0k\0b\0o\0o\0k\0\0", 18);
    const QByteArray other("E\0n\0c\0r\0y\0p\0t\0e\0d\0P\0a\0c\0k\0a\0g\0e\0\0\0", 34);
    QByteArray bytes = exchanged(book, name + QByteArray(46, '\0'), other + QByteArray(30, '\0'));
    return bytes.replace(bytes.indexOf(other) + 64, 1, "\x22");
}

QByteArray randomBytes() {
    QByteArray bytes(5000, '\0');
    QRandomGenerator(7).generate(bytes.begin(), bytes.end());
    return bytes;
}

QByteArray halfOf(const QByteArray& bytes) {
    return bytes.left(bytes.size() / 2);
}

void makePipe(const QString& file) {
    EXPECT_EQ(mkfifo(file.toLocal8Bit(), 0600), 0);
}

} // namespace

class ImportFailures : public FailuresFixture {
protected:
    void TearDown() override {
        if (!IsSkipped()) {
            expectThatAnOrdinaryImportWorks();
        }
    }

    QStringList anyKind() const {
        return {rawFile("X.S00"), table("lab.xlsx"), made("X.R00", bytesOf(example("good-clean-01.R00")))};
    }

    /// Imports the file into a new project, with little room at first and with more each time, until it
    /// succeeds. What fails must leave nothing of the file, and come in once there is room.
    template <class Limit>
    void expectAllOrNothing(const QString& file, const QString& projectPath, const Limit& limit) {
        bool done = false;
        int failures = 0;
        for (int room = 0; !done && room < 256 * page; room += page) {
            SCOPED_TRACE(room);
            workbench->projects().close();
            QFile::remove(projectPath);
            QDir(projectPath.chopped(8) + "import").removeRecursively();
            workbench->projects().create(projectPath);
            openAnew();
            drop({file});
            {
                const auto limited = limit(room);
                pressImport();
            }
            done = status(file) == VornCtrl::ImportDone;
            EXPECT_EQ(holds(file), done);
            EXPECT_EQ(told().isEmpty(), done) << told();
            expectWholeProject();
            if (!done) {
                ++failures;
                EXPECT_EQ(status(file), VornCtrl::ImportFailed);
                expectTold({QFileInfo(file).fileName(), "space"});
                pressImport();
                EXPECT_EQ(status(file), VornCtrl::ImportDone) << told();
                EXPECT_TRUE(holds(file));
            }
        }
        EXPECT_TRUE(done);
        EXPECT_GT(failures, 2) << "at each step of an import, which writes more than a page";
    }

    /// Whether what isn't done is not in the project and has been told, and so many are done.
    void expectDone(int done, const QStringList& paths) {
        EXPECT_EQ(count(VornCtrl::ImportDone, paths), done);
        for (const QString& file : paths) {
            EXPECT_EQ(holds(file), status(file) == VornCtrl::ImportDone) << file;
            EXPECT_EQ(told().contains(QFileInfo(file).fileName()), !holds(file)) << file << " in " << told();
        }
    }

    /// Imports both while another window writes until the first has failed of it.
    void expectThatTheSecondComesIn(const QStringList& paths) {
        openAnew();
        drop(paths);
        QElapsedTimer time;
        time.start();
        {
            OtherWriter other(project().path());
            const auto ending = QObject::connect(&workbench->log(), &QAbstractItemModel::rowsInserted,
                                                 [&other] { other.end(); });
            pressImport();
            QObject::disconnect(ending);
        }
        EXPECT_LT(time.elapsed(), 14'000);
        EXPECT_EQ(count(VornCtrl::ImportFailed, paths), 1);
        expectDone(1, paths);
        expectTold({"is being written by another window", "try again"});
        pressImport();
        EXPECT_EQ(count(VornCtrl::ImportDone, paths), 2);
    }
};

TEST_F(ImportFailures, a_file_comes_in_whole_or_not_at_all_wherever_the_disk_ends) {
    for (const QString& file : anyKind()) {
        expectAllOrNothing(file, path("lab.vornproj"),
                           [](int room) { return std::make_unique<FullDisk>(static_cast<rlim_t>(room)); });
    }
}

TEST_F(ImportFailures, a_small_disk_takes_all_of_a_file_or_nothing) {
    QDir().mkdir(path("disk"));
    const SmallDisk disk(path("disk"));
    if (!disk.isMounted()) {
        GTEST_SKIP() << "only who may mount a disk can fill a real one up";
    }
    for (const QString& file : anyKind()) {
        expectAllOrNothing(file, disk.file("lab.vornproj"),
                           [&](int room) { return std::make_unique<Ballast>(disk.file("ballast"), room); });
    }
    workbench->projects().open(path("lab.vornproj"));
}

TEST_F(ImportFailures, where_no_folder_can_be_made_for_curves_the_tables_come_in) {
    const QString raw = rawFile("X.S00");
    const QString sheet = table("lab.xlsx");
    const QString curves = VKObject2Analysis::folderName();
    for (const QString& place : {QString("lab.import"), "lab.import/" + curves}) {
        workbench->projects().close(); // with what it keeps in the folder
        workbench->projects().open(path("lab.vornproj"));
        QDir(path("lab.import")).removeRecursively();
        QFile::remove(path("lab.import"));
        QDir().mkpath(QFileInfo(path(place)).path());
        made(place, "no folder");
        openAnew();
        import({raw, sheet});
        EXPECT_EQ(status(raw), VornCtrl::ImportFailed);
        expectDone(1, {raw, sheet});
        expectTold({"lab.import", "permissions"});
        expectWholeProject();
    }
    workbench->projects().close();
    EXPECT_TRUE(QDir(path("lab.import")).removeRecursively());
    workbench->projects().open(path("lab.vornproj"));
    pressImport();
    EXPECT_EQ(status(raw), VornCtrl::ImportDone);
}

TEST_F(ImportFailures, files_that_vanish_before_they_are_offered_are_named) {
    const QStringList paths = {rawFile("X.S00"), rawFile("Y.S00"), table("lab.xlsx")};
    drop(paths);
    QFile::remove(paths[0]);
    QFile::remove(paths[2]);
    pressImport();
    expectTold({"it does not exist; check where it was"});
    EXPECT_EQ(count(VornCtrl::ImportPending, paths), 2) << "no reader took them";
    expectDone(1, paths);
}

TEST_F(ImportFailures, files_that_vanish_or_change_while_a_wizard_is_open_are_named) {
    const QStringList paths = {table("a.xlsx"), table("b.xlsx"), table("c.xlsx")};
    drop(paths);
    ModalAnswers answers;
    answers.setObserver([&](QWidget&) { // the file of the wizard is read already
        QFile::remove(paths[0]);
        QFile::remove(paths[1]);
        made("c.xlsx", halfOf(bytesOf(paths[2])));
    });
    emit module->editor()->importAsked();
    EXPECT_EQ(answers.asked().size(), 1);
    expectDone(1, paths);
}

TEST_F(ImportFailures, a_file_that_changes_after_a_reader_took_it_fails_alone) {
    const QList<std::function<void(const QString&)>> changes = {
        [](const QString& file) { QFile::remove(file); },
        [](const QString& file) { QFile(file).resize(0); },
        [](const QString& file) { EXPECT_TRUE(QFile::remove(file) && QDir().mkdir(file)); },
        [](const QString& file) { QFile::remove(file), makePipe(file); },
        [](const QString& file) { QFile(file).rename(file + "-"), QFile::copy("/proc/self/exe", file); },
    };
    for (int number = 0; number < changes.size(); ++number) {
        openAnew();
        module->onAccepted = changes[number];
        const QString name = QString::number(number);
        const QStringList files = {rawFile(name + ".S00"), table(name + ".xlsx"),
                                   made(name + ".xls", bytesOf(example("tables/gas.xls")))};
        import(files);
        EXPECT_EQ(count(VornCtrl::ImportFailed, files), 3);
        expectDone(0, files);
    }
}

TEST_F(ImportFailures, a_file_that_another_window_keeps_out_fails_and_the_next_one_comes_in) {
    expectThatTheSecondComesIn({table("a.xlsx"), table("b.xlsx")});
    expectThatTheSecondComesIn({rawFile("X.S00"), rawFile("Y.S00")});
}

TEST_F(ImportFailures, another_window_can_write_while_the_wizard_or_a_question_is_open) {
    const QString file = table("lab.xlsx");
    import({file});
    table("lab.xlsx", 2.5);
    openAnew();
    drop({file});
    ModalAnswers answers({"Overwrite"});
    answers.setObserver([this, &answers](QWidget&) {
        const auto other = TechDB::TDatabase::open(project().path());
        EXPECT_NO_THROW(other->addWell(QString::number(answers.asked().size())));
    });
    emit module->editor()->importAsked();
    EXPECT_EQ(answers.asked().size(), 2) << "the wizard and the question";
    EXPECT_TRUE(project().getWell("1") != nullptr && project().getWell("2") != nullptr);
    EXPECT_EQ(told(), "");
    EXPECT_TRUE(holds(file));
}

TEST_F(ImportFailures, hostile_files_are_named_and_the_good_one_among_them_comes_in) {
    const QByteArray book = bytesOf(example("tables/gas.xlsx"));
    const QByteArray old = bytesOf(QDir(VORN_WORKBOOKS).filePath("results-small-stream.xls"));
    const QByteArray codePage("\x42\0\x02\0\xB0\x04", 6);
    const QByteArray head("\r\n[Curves pyro]\r\n");
    const QStringList failing = {
        made("password.xls", exchanged(old, codePage, QByteArray(codePage).replace(0, 1, "\x2F"))),
        made("password.xlsx", locked(old)),
        made("half.xlsx", halfOf(book)),
        made("half.xls", halfOf(bytesOf(example("tables/gas.xls")))),
        made("archive.xlsx", exchanged(book, "xl/workbook.xml", "xl/workbork.xml")),
        made("noise.S00", head + randomBytes().replace('\0', '-')),
        made("single.S00", head + "0\t199\t1560\r\n"),
        made("still.S00", head + QByteArray("5\t199\t1560\r\n").repeated(50)),
        made("infinite.S00", head + "nan\t199\t1560\r\n1\t199\tinf\r\n2\t199\t1e999\r\n"),
    };
    QStringList refused = {made("random.S00", randomBytes()), made("empty.xls", {})};
    for (const QString ending : {"S00", "xlsx"}) {
        refused += {made("empty." + ending, {}), path("folder." + ending), path("pipe." + ending)};
        EXPECT_TRUE(QDir().mkdir(path("folder." + ending)));
        makePipe(path("pipe." + ending));
    }
    if (geteuid() != 0) { // who may read all that there is
        refused += {rawFile("secret.S00"), table("secret.xlsx")};
        EXPECT_TRUE(QFile::setPermissions(path("secret.S00"), {}) &&
                    QFile::setPermissions(path("secret.xlsx"), {}));
    }
    refused += made("empty.R00", {});
    const QString good = rawFile("good.S00");
    import(failing + refused + QStringList(good));
    EXPECT_EQ(count(VornCtrl::ImportFailed, failing), failing.size());
    EXPECT_EQ(count(VornCtrl::ImportPending, refused), refused.size());
    for (const QString& file : failing + refused) {
        expectTold({QFileInfo(file).fileName()});
    }
    EXPECT_TRUE(status(good) == VornCtrl::ImportDone && holds(good));
    EXPECT_EQ(project().analyses().size(), 1);
    EXPECT_TRUE(project().datasets().isEmpty());
}

#include "DropDialog.h"
#include "FileSorter.h"
#include "FolderWalk.h"
#include "ImportOutcomes.h"
#include "MessageLogModel.h"
#include "ModalAnswers.h"
#include "MouseDrop.h"
#include "TDatabase.h"
#include "TableView.h"
#include "VKDataModel.h"
#include "WorkbenchFixture.h"
#include "Workspace.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QMimeData>
#include <QUrl>

#include <sys/stat.h>

namespace {

class Drop : public WorkbenchFixture {
protected:
    using Kind = ImportModules::Kind;

    Drop() { workbench->projects().create(path("open.vornproj")); }

    QString write(const QString& name, const QByteArray& content) const {
        QFile file(path("lab/" + name));
        QDir().mkpath(QFileInfo(file).path());
        file.open(QIODevice::WriteOnly);
        file.write(content);
        return file.fileName();
    }
    QString example(const QString& name, const QString& as) const {
        QFile file(VORN_EXAMPLES "/" + name);
        file.open(QIODevice::ReadOnly);
        return write(as, file.readAll());
    }
    QString otherProject() const {
        QDir().mkpath(path("lab"));
        return TechDB::TDatabase::create(path("lab/other.vornproj"))->path();
    }
    void drop(const QStringList& paths) {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString& each : paths) {
            urls.append(QUrl::fromLocalFile(each));
        }
        data.setUrls(urls);
        MouseDrop::on(workbench->window(), data);
        settle();
    }
    /// The list at the end: file, outcome and reason; empty if none is in front.
    QMap<QString, QString> outcomes() {
        QMap<QString, QString> found;
        const auto* const page = dynamic_cast<const TableView*>(workspace().currentPage());
        if (page == nullptr || page->title() != "Import outcome") {
            return found;
        }
        const VKDataModel& table = *page->model();
        for (int row = 0; row < table.rowCount(); ++row) {
            const auto cell = [&](int column) { return table.index(row, column).data().toString(); };
            EXPECT_FALSE(found.contains(cell(0))) << "told twice";
            found.insert(cell(0), cell(1) + ": " + cell(2));
        }
        return found;
    }
    QStringList namesIn(const FolderWalk& walk) const {
        QStringList names;
        for (const QString& each : walk.files()) {
            names.append(QDir(path("lab")).relativeFilePath(each));
        }
        return names;
    }
};

} // namespace

TEST_F(Drop, a_folder_of_everything_dropped_on_the_window_is_imported_and_each_file_is_accounted_for) {
    example("good-clean-01.S00", "curve.S00");
    example("good-clean-01.R00", "curve.R00");
    example("tables/gas.xlsx", "tables/gas.xlsx");
    example("tables/source-rock.xls", "tables/rocks.xls");
    write("damaged.xlsx", "PK\3\4 and no more");
    write("notes <b>.txt", "to do");
    write("fake.S00", "no raw file");
    otherProject();

    ModalAnswers answers;
    drop({path("lab")});
    EXPECT_EQ(answers.asked().first(), "Bring files in");
    const QMap<QString, QString> found = outcomes();
    EXPECT_EQ(found.size(), 8) << found.keys().join(" ").toStdString();
    for (const char* const imported : {"curve.S00", "curve.R00", "gas.xlsx", "rocks.xls"}) {
        EXPECT_TRUE(found[imported].startsWith("imported")) << imported << found[imported].toStdString();
    }
    EXPECT_TRUE(found["damaged.xlsx"].startsWith("failed: ")) << found["damaged.xlsx"].toStdString();
    EXPECT_TRUE(found["damaged.xlsx"].contains("damaged.xlsx"));
    EXPECT_TRUE(found["notes <b>.txt"].contains("no module reads")) << "names are names, not markup";
    EXPECT_TRUE(found["fake.S00"].contains("export it"));
    EXPECT_TRUE(found["other.vornproj"].startsWith("skipped: You left it out"));
    EXPECT_NE(project().getAnalysis("curve.S00"), nullptr);
    EXPECT_NE(project().getWell("Gas data-gas.xlsx"), nullptr);
    EXPECT_NE(project().getWell("Source Rock-rocks.xls"), nullptr);
    EXPECT_TRUE(messages(MessageLevel::Warning).last().contains("4 imported, 3 skipped, 1 failed"));

    drop({path("lab/curve.S00")});
    EXPECT_TRUE(outcomes()["curve.S00"].contains("imported before")) << "though the module keeps silent";
    EXPECT_EQ(workspace().findChildren<TableView*>().size(), 1) << "in the place of the first list";
}

TEST_F(Drop, what_is_chosen_in_the_dialog_is_done_and_a_project_is_opened_before_it) {
    const QString other = otherProject();
    ModalAnswers answers;
    answers.setObserver([](QWidget& asked) {
        if (auto* const dialog = dynamic_cast<DropDialog*>(&asked)) {
            const QList<QComboBox*> boxes = dialog->findChildren<QComboBox*>();
            ASSERT_EQ(boxes.size(), 2);
            boxes[0]->setCurrentText("Custom import");
            boxes[1]->setCurrentText("Open other.vornproj");
        }
    });
    drop({example("tables/gas.xlsx", "gas.xlsx"), other});
    EXPECT_EQ(project().path(), other);
    EXPECT_NE(project().getWell("Custom import-gas.xlsx"), nullptr);
    EXPECT_EQ(outcomes().value("other.vornproj"), "imported: The project was opened.");
}

TEST_F(Drop, a_project_alone_is_opened_without_a_question_and_strangers_alone_are_only_told) {
    const QString other = otherProject();
    ModalAnswers answers;
    drop({other});
    EXPECT_EQ(project().path(), other);
    drop({write("notes.txt", "to do"), path("gone.S00")});
    EXPECT_EQ(answers.asked(), QStringList());
    EXPECT_EQ(outcomes().size(), 2);
    EXPECT_TRUE(outcomes()["gone.S00"].contains("does not exist"));
    workbench->projects().close();
    drop({example("good-clean-01.S00", "curve.S00")});
    EXPECT_TRUE(outcomes()["curve.S00"].contains("open or make one")) << "without a project";
}

TEST_F(Drop, what_is_not_imported_is_told_whoever_left_it_and_when_all_went_well_nothing) {
    const QString curve = example("good-clean-01.S00", "curve.S00");
    const QString table = example("tables/gas.xlsx", "gas.xlsx");
    ModalAnswers answers({"Cancel"});
    workbench->imports().importFiles(Kind::Custom, {table});
    EXPECT_TRUE(outcomes()["gas.xlsx"].startsWith("skipped: Nothing was stored")) << "its wizard was closed";
    workspace().closePages();
    workbench->imports().importFiles(Kind::SourceRock, {curve});
    EXPECT_TRUE(outcomes().isEmpty()) << "the module and the messages say so";
    workbench->imports().importFiles(Kind::Gas, {curve, table});
    EXPECT_TRUE(outcomes()["curve.S00"].contains("doesn't take files of this kind"));
}

TEST(ImportOutcomes, account_for_every_file_even_if_its_pass_never_ends) {
    const MessageLogModel log;
    ImportOutcomes outcomes(log);
    QMap<QString, QString> told;
    QObject::connect(&outcomes, &ImportOutcomes::gathered, [&told](const QVector<ImportOutcome>& all) {
        for (const ImportOutcome& outcome : all) {
            told.insert(outcome.path, nameOf(outcome.state));
        }
    });
    outcomes.begin({"a", "b", "c"});
    outcomes.add({"a", ImportOutcome::State::Skipped, "left out", {}});
    outcomes.passBegan("Module", {{"b", 0}, {"c", 0}});
    outcomes.fileBegan("b");
    outcomes.finish();
    EXPECT_EQ(told, (QMap<QString, QString>{{"a", "skipped"}, {"b", "failed"}, {"c", "failed"}}));
    told.clear();
    outcomes.passEnded({{"b", 1}});
    EXPECT_TRUE(told.isEmpty()) << "of a pass that is over";
}

TEST(Sorter, tables_go_to_the_module_that_knows_most_of_their_columns_in_either_language_and_format) {
    const auto kindOf = [](const QString& name) { return FileSorter::sort(VORN_EXAMPLES "/" + name).kind; };
    for (const QString suffix : {".xlsx", ".xls"}) {
        EXPECT_EQ(kindOf("tables/source-rock" + suffix), FileKind::SourceRockTable);
        EXPECT_EQ(kindOf("tables/source-rock-french" + suffix), FileKind::SourceRockTable);
        EXPECT_EQ(kindOf("tables/gas" + suffix), FileKind::GasTable);
        EXPECT_EQ(kindOf("tables/custom" + suffix), FileKind::OtherTable);
    }
    EXPECT_EQ(kindOf("good-trailing-tabs-01.s00"), FileKind::Raw);
    EXPECT_EQ(kindOf("good-clean-01.R00"), FileKind::Raw);
}

TEST_F(Drop, names_that_lie_are_seen_through_and_every_stranger_is_told_why_and_what_to_do) {
    const std::tuple<const char*, QByteArray, const char*> strangers[] = {
        {"renamed.txt", "[Curves pyro]\r\n0\t100\t5\r\n", ".S00"},
        {"fake.xlsx", "no workbook", "no Excel workbook"},
        {"fake.S00", QByteArray("\0\1\2", 3), "square brackets"},
        {"fake.vornproj", "no database", "no project"},
        {"table.csv", "a,b\n1,2\n", ".xlsx"},
        {"all.zip", "PK\3\4", "unpack"},
        {"~$open.xlsx", "user", "open workbook"},
        {"empty.S00", "", "empty"},
        {"photo.png", "\x89PNG", "no module"},
    };
    for (const auto& [name, content, reason] : strangers) {
        EXPECT_TRUE(FileSorter::sort(write(name, content)).reason.contains(reason)) << name;
    }
    EXPECT_EQ(FileSorter::sort(write("damaged.xlsx", "PK\3\4 and no more")).kind, FileKind::OtherTable)
        << "its import tells what is wrong";
}

TEST_F(Drop, a_walk_takes_each_file_once_in_natural_order_and_ends_in_links_pipes_and_limits) {
    for (const char* name : {"b/curve10.S00", "b/curve2.S00", "b/.hidden", "a.txt"}) {
        write(name, "x");
    }
    QDir().mkpath(path("lab/b/nothing"));
    QFile::link(path("lab"), path("lab/b/up")); // a walk that followed it wouldn't end
    ASSERT_EQ(mkfifo(QFile::encodeName(path("lab/b/pipe")).constData(), 0600), 0);

    const FolderWalk walk({path("lab/b/curve10.S00"), path("lab")});
    EXPECT_EQ(namesIn(walk), QStringList({"b/curve10.S00", "a.txt", "b/curve2.S00", "b/pipe"}));
    ASSERT_EQ(walk.refused().size(), 2);
    EXPECT_TRUE(walk.refused()[0].reason.contains("empty"));
    EXPECT_TRUE(walk.refused()[1].reason.contains("link"));
    EXPECT_TRUE(FileSorter::sort(path("lab/b/pipe")).reason.contains("no regular file"));

    const FolderWalk limited({path("lab")}, 2);
    EXPECT_EQ(limited.files().size(), 2);
    EXPECT_TRUE(limited.refused().last().reason.contains("looked at")) << "the limit is told";
}

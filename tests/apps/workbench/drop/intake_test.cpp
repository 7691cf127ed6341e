#include "DropDialog.h"
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
#include <QPushButton>
#include <QUrl>

namespace {

class Intake : public WorkbenchFixture {
protected:
    using Kind = ImportModules::Kind;

    Intake() {
        QDir().mkpath(path("lab/tables"));
        workbench->projects().create(path("open.vornproj"));
    }

    QString example(const QString& name, const QString& as) const {
        QFile::copy(QStringLiteral(VORN_EXAMPLES "/") + name, path("lab/" + as));
        return path("lab/" + as);
    }
    QString write(const QString& name, const QByteArray& content) const {
        QFile file(path("lab/" + name));
        file.open(QIODevice::WriteOnly);
        file.write(content);
        return file.fileName();
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
};

} // namespace

TEST_F(Intake, a_folder_of_everything_dropped_on_the_window_is_imported_and_each_file_is_accounted_for) {
    example("good-clean-01.S00", "curve.S00");
    example("good-clean-01.R00", "curve.R00");
    example("tables/gas.xlsx", "tables/gas.xlsx");
    example("tables/source-rock.xls", "tables/rocks.xls");
    write("damaged.xlsx", "PK\3\4 and no more");
    write("notes <b>.txt", "to do");
    write("fake.S00", "no raw file");
    ASSERT_NE(TechDB::TDatabase::create(path("lab/other.vornproj")), nullptr);

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

TEST_F(Intake, what_is_chosen_in_the_dialog_is_done_and_a_project_is_opened_before_it) {
    const QString table = example("tables/gas.xlsx", "gas.xlsx");
    const QString other = path("lab/other.vornproj");
    TechDB::TDatabase::create(other);
    ModalAnswers answers;
    answers.setObserver([](QWidget& asked) {
        if (auto* const dialog = dynamic_cast<DropDialog*>(&asked)) {
            const QList<QComboBox*> boxes = dialog->findChildren<QComboBox*>();
            ASSERT_EQ(boxes.size(), 2);
            boxes[0]->setCurrentText("Custom import");
            boxes[1]->setCurrentText("Open other.vornproj");
        }
    });
    drop({table, other});
    EXPECT_EQ(project().path(), other);
    EXPECT_NE(project().getWell("Custom import-gas.xlsx"), nullptr);
    EXPECT_EQ(outcomes().value("other.vornproj"), "imported: The project was opened.");
}

TEST_F(Intake, a_project_alone_is_opened_without_a_question_and_strangers_alone_are_only_told) {
    const QString other = path("lab/other.vornproj");
    TechDB::TDatabase::create(other);
    ModalAnswers answers;
    drop({other});
    EXPECT_EQ(project().path(), other);
    drop({write("notes.txt", "to do"), path("gone.S00")});
    EXPECT_EQ(answers.asked(), QStringList());
    EXPECT_EQ(outcomes().size(), 2);
    EXPECT_TRUE(outcomes()["gone.S00"].contains("does not exist"));
}

TEST_F(Intake, a_modules_own_button_also_tells_of_the_files_that_it_leaves_waiting_without_a_word) {
    const QString curve = example("good-clean-01.S00", "curve.S00");
    const QString table = example("tables/gas.xlsx", "gas.xlsx");
    ModalAnswers answers;
    workbench->imports().importFiles(Kind::Gas, {curve, table});
    EXPECT_TRUE(outcomes()["gas.xlsx"].startsWith("imported"));
    EXPECT_TRUE(outcomes()["curve.S00"].contains("doesn't take files of this kind"));
    workspace().closePages();
    workbench->imports().importFiles(Kind::SourceRock, {curve});
    EXPECT_TRUE(outcomes().isEmpty()) << "all went well: the module and the messages say so";
}

TEST_F(Intake, a_wizard_that_is_closed_stores_nothing_and_the_list_says_so) {
    ModalAnswers answers({"Cancel"});
    workbench->imports().importFiles(Kind::Custom, {example("tables/custom.xlsx", "custom.xlsx")});
    EXPECT_TRUE(outcomes()["custom.xlsx"].startsWith("skipped: Nothing was stored"));
}

TEST_F(Intake, without_a_project_nothing_is_imported_and_the_list_says_what_to_do) {
    workbench->projects().close();
    ModalAnswers answers;
    drop({example("good-clean-01.S00", "curve.S00")});
    EXPECT_TRUE(outcomes()["curve.S00"].contains("open or make one"));
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

#include "QualityCheckFixture.h"

#include "CheckReport.h"
#include "CheckSession.h"
#include "TData.h"
#include "filegrader.h"
#include "gradejob.h"

#include <QCryptographicHash>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

#include <cstring>
#include <sstream>

/// What the window says, beside what the batch grader says with the settings of the sliders.
class BothRoads : public QualityCheckTest {
protected:
    gradereport::GradeRecord byGrader(const QString& name) {
        const std::string file = examples.filePath(name).toStdString();
        const auto outcome = grade::gradeFile(file, settings(), gradereport::Curves::leftOut);
        return std::get<grade::GradedFile>(outcome).record;
    }
    /// The report on all of a folder.
    QByteArray reportByGrader(const QString& inputs, gradereport::Language language) {
        grade::Options options;
        options.settings = settings();
        options.language = language;
        options.report = path("grader.html").toStdString();
        options.paths = {inputs.toStdString()};
        std::istringstream in;
        std::ostringstream out;
        std::ostringstream err;
        EXPECT_EQ(grade::run(options, {in, out, err, {}}), 0) << err.str();
        return bytes(path("grader.html"));
    }

    /// The codes in the manager's order, from the labels of the export.
    QStringList codes() {
        workbench->qualityCheck().exportForLearning();
        const QString labels = QString::fromUtf8(bytes(path("dataSR.txt"))).section("y=[", 1);
        return labels.section(']', 0, 0).split(';', Qt::SkipEmptyParts);
    }
    /// Of the one that is on screen.
    void expectAgreement() {
        ASSERT_EQ(viewers().size(), 1);
        const TechPlot::VKViewer2D& viewer = *viewers().first();
        const testing::ScopedTrace trace(__FILE__, __LINE__, viewer.name().toStdString());
        EXPECT_EQ(viewer.plotters().size(), 2) << "markers and raw signal, and no smoothed one";
        const gradereport::GradeRecord expected = byGrader(viewer.name());
        EXPECT_EQ(viewer.note().toStdString(), expected.reason);
        const TechPlot::TData& peaks = *markers().data();
        ASSERT_EQ(static_cast<std::size_t>(peaks.count()), expected.peaks.size());
        for (int i = 0; i < peaks.count(); ++i) {
            const auto& peak = expected.peaks[static_cast<std::size_t>(i)];
            const float shown[] = {peaks.X()[i], peaks.Y()[i]};
            const float graded[] = {static_cast<float>(peak.x), static_cast<float>(peak.y)};
            EXPECT_EQ(std::memcmp(shown, graded, sizeof(shown)), 0) << i;
        }
    }

    const QDir examples{VORN_EXAMPLES};
    const QStringList files = examples.entryList({"*.S00", "*.s00"}, QDir::Files);
};

TEST_F(BothRoads, agree_on_every_example_to_the_last_bit_and_word_and_wherever_the_sliders_stand) {
    ASSERT_GE(files.size(), 24);
    dropNamed(files);
    list().selectAll();
    settle();
    const QStringList names = onScreen();
    ASSERT_EQ(names.size(), files.size());
    const auto expectAgreements = [&] {
        const QStringList found = codes();
        ASSERT_EQ(found.size(), names.size());
        for (int i = 0; i < names.size(); ++i) {
            EXPECT_EQ(found[i].toInt(), byGrader(names[i]).quality) << names[i].toStdString();
            select({names[i]});
            expectAgreement();
        }
    };
    expectAgreements();
    select({"double-noisy-01.S00"});
    const std::pair<SliderScientific*, int> moves[] = {{&sensitivity(), lastPosition(sensitivity())},
                                                       {&coelution(), lastPosition(coelution())},
                                                       {&sensitivity(), 60},
                                                       {&coelution(), 30},
                                                       {&height(), 450}};
    for (const auto& [slider, position] : moves) {
        move(*slider, position);
        expectAgreement(); // on screen already, it follows at once
    }
    expectAgreements();
    workbench->language().choose(LanguageSwitch::Language::French);
    settle();
    select({"good-clean-01.S00"});
    EXPECT_TRUE(viewers()[0]->note().contains(" pic")) << viewers()[0]->note().toStdString();
}

TEST_F(BothRoads, give_the_same_bytes_of_a_report_on_the_same_raw_files) {
    const QString raw = path("raw é & <b>");
    ASSERT_TRUE(QDir().mkpath(raw));
    QStringList paths;
    for (const QString& name : files) {
        paths.append(QDir(raw).filePath(name));
        ASSERT_TRUE(QFile::copy(examples.filePath(name), paths.last()));
    }
    workbench->projects().create(path("imported.vornproj"));
    workbench->imports().importFiles(ImportModules::Kind::SourceRock, paths);
    settle();
    QStringList reversed;
    for (const auto& info : project().analyses()) {
        reversed.prepend(info.name);
    }
    ASSERT_EQ(reversed.size(), files.size());
    dropNamed(reversed);
    move(sensitivity(), 333);
    move(height(), 280);
    session().writeReport(path("window.html"));
    const QByteArray expected = reportByGrader(raw, gradereport::Language::english);
    ASSERT_GT(expected.size(), 100000);
    EXPECT_TRUE(bytes(path("window.html")) == expected);
    EXPECT_TRUE(messages(MessageLevel::Information).last().contains("window.html"));
    workbench->language().choose(LanguageSwitch::Language::French);
    session().writeReport(path("fenêtre.html"));
    EXPECT_TRUE(bytes(path("fenêtre.html")) == reportByGrader(raw, gradereport::Language::french));
    EXPECT_TRUE(errors().isEmpty());
}

TEST_F(BothRoads, have_settings_version_and_digests_beside_every_other_export) {
    const QString name = "flat-broad-01.S00";
    dropNamed({name});
    select({name});
    move(height(), 123);
    const QPointer<TableView> table = openTable();
    ASSERT_NE(table, nullptr);
    table->exportTo(path("results.csv"));
    workbench->qualityCheck().exportForLearning();
    QTimer::singleShot(0, [this] {
        auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        dialog->findChild<QLineEdit*>()->setText(path("curve.png"));
        dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save)->click();
    });
    emit workspace().findChild<TechPlot::TEditorMatrix*>()->viewers().first()->exportRequested();
    const QByteArray raw = bytes(examples.filePath(name));
    for (const char* const file : {"results.origin.json", "dataSR.origin.json", "curve.origin.json"}) {
        const QJsonObject origin = QJsonDocument::fromJson(bytes(path(file))).object();
        EXPECT_EQ(origin["version"].toString(), VORN_VERSION) << file;
        EXPECT_EQ(origin["settings"].toObject()["height"].toDouble(), height().value());
        ASSERT_EQ(origin["inputs"].toArray().size(), 1);
        const QJsonObject input = origin["inputs"].toArray()[0].toObject();
        EXPECT_EQ(input["sha256"].toString().toLatin1(),
                  QCryptographicHash::hash(raw, QCryptographicHash::Sha256).toHex());
        EXPECT_EQ(input["quality"].toInt(), 1) << "low enough a limit";
    }
    editor()->closeRequested();
    settle();
    workbench->qualityCheck().start();
    ASSERT_NE(table, nullptr);
    table->exportTo(path("late.csv"));
    EXPECT_FALSE(QFile::exists(path("late.origin.json"))) << "of another check";
    EXPECT_TRUE(messages(MessageLevel::Warning).last().contains("not known any more"));
}

TEST_F(BothRoads, say_what_is_missing_in_a_report_and_where_it_could_not_be_written) {
    project().addAnalysis("drawn by hand", {},
                          TAnalysisData(project().curve(analysis("good-clean-01.S00")->key())));
    dropNamed({"good-clean-01.S00", "drawn by hand", "double-clean-01.S00"});
    project().removeAnalysis(analysis("double-clean-01.S00")->key());
    session().writeReport(path("lost.html"));
    EXPECT_TRUE(messages(MessageLevel::Warning).last().contains("1 of 3 analyses have no digest"));
    EXPECT_TRUE(
        bytes(path("lost.html")).contains("double-clean-01.S00: the curve is no longer in the project"));
    session().writeReport(path("no such folder/x.html"));
    ASSERT_EQ(errors().size(), 1);
    EXPECT_TRUE(errors()[0].contains("no such folder"));
}

TEST_F(BothRoads, outlive_the_project_but_its_pages_and_go_with_the_check) {
    dropNamed({"good-clean-01.S00"});
    openTable();
    workbench->projects().create(path("other.vornproj"));
    settle();
    EXPECT_EQ(workspace().currentPage(), nullptr);
    EXPECT_TRUE(project().analyses().isEmpty());
    select({"good-clean-01.S00"});
    expectAgreement();
    editor()->closeRequested();
    settle();
    workbench->qualityCheck().start();
    dropNamed({});
    EXPECT_TRUE(errors().isEmpty());
}

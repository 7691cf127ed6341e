#include "QualityCheckFixture.h"

#include "CheckReport.h"
#include "CheckSession.h"
#include "ModuleObserver.h"
#include "TableView.h"
#include "gradejob.h"

#include <QCryptographicHash>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

#include <fstream>
#include <sstream>

/// Raw files on disk, imported by the module and graded in the window and by the batch grader.
class Report : public QualityCheckTest {
protected:
    QByteArray bytes(const QString& file) const {
        QFile opened(file);
        return opened.open(QIODevice::ReadOnly) ? opened.readAll() : QByteArray("unreadable");
    }
    CheckSession& session() { return *workbench->qualityCheck().session(); }

    /// The report of the batch grader on all of a folder.
    QByteArray byGrader(const QString& inputs, const gradereport::EngineSettings& settings,
                        gradereport::Language language = gradereport::Language::english) {
        grade::Options options;
        options.settings = settings;
        options.language = language;
        options.report = path("grader.html").toStdString();
        options.paths = {inputs.toStdString()};
        std::istringstream in;
        std::ostringstream out;
        std::ostringstream err;
        EXPECT_EQ(grade::run(options, {in, out, err, {}}), 0) << err.str();
        return bytes(path("grader.html"));
    }
};

TEST_F(Report, from_the_window_has_the_bytes_of_the_batch_graders_on_the_same_raw_files) {
    const QString raw = path("raw é & <b>");
    ASSERT_TRUE(QDir().mkpath(raw));
    const QDir examples(VORN_EXAMPLES);
    QStringList files;
    const QStringList names = examples.entryList({"*.S00", "*.s00"}, QDir::Files);
    for (const QString& name : names) {
        files.append(QDir(raw).filePath(name));
        ASSERT_TRUE(QFile::copy(examples.filePath(name), files.last()));
    }
    workbench->projects().create(path("imported.vornproj"));
    workbench->imports().importFiles(ImportModules::Kind::SourceRock, files);
    settle();
    QStringList reversed;
    for (const auto& info : project().analyses()) {
        reversed.prepend(info.name);
    }
    ASSERT_EQ(reversed.size(), files.size());
    dropNamed(reversed);
    move(sensitivity(), 333);
    move(height(), 280);
    const gradereport::EngineSettings settings{1.0 - sensitivity().value(), coelution().value(),
                                               height().value()};
    session().writeReport(path("window.html"));
    const QByteArray expected = byGrader(raw, settings);
    ASSERT_GT(expected.size(), 100000);
    EXPECT_TRUE(bytes(path("window.html")) == expected);
    EXPECT_TRUE(messages(MessageLevel::Information).last().contains("window.html"));
    workbench->language().choose(LanguageSwitch::Language::French);
    session().writeReport(path("fenêtre.html"));
    EXPECT_TRUE(bytes(path("fenêtre.html")) == byGrader(raw, settings, gradereport::Language::french));
    EXPECT_TRUE(errors().isEmpty());
}

TEST_F(Report, every_other_export_has_settings_version_and_digests_beside_it) {
    const QString name = "flat-broad-01.S00";
    dropNamed({name});
    select({name});
    move(height(), 123);
    editor()->slotEventOccured(ModuleObserver::dataEditorAction);
    settle();
    const QPointer<TableView> table = dynamic_cast<TableView*>(workspace().currentPage());
    ASSERT_NE(table, nullptr);
    table->exportTo(path("results.csv"));
    workbench->qualityCheck().exportForLearning();
    for (const QString& file : {path("results.origin.json"), path("dataSR.origin.json")}) {
        const QJsonObject origin = QJsonDocument::fromJson(bytes(file)).object();
        EXPECT_EQ(origin["version"].toString(), VORN_VERSION) << file.toStdString();
        EXPECT_EQ(origin["settings"].toObject()["height"].toDouble(), height().value());
        const QJsonObject input = origin["inputs"].toArray()[0].toObject();
        const QByteArray raw = bytes(QDir(VORN_EXAMPLES).filePath(name));
        EXPECT_EQ(input["sha256"].toString().toLatin1(),
                  QCryptographicHash::hash(raw, QCryptographicHash::Sha256).toHex());
        EXPECT_EQ(input["quality"].toInt(), 1) << "low enough a limit";
    }
    QTimer::singleShot(0, [this] {
        auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        dialog->findChild<QLineEdit*>()->setText(path("curve.png"));
        dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save)->click();
    });
    emit workspace().findChild<TechPlot::TEditorMatrix*>()->viewers().first()->exportRequested();
    const QJsonObject curve = QJsonDocument::fromJson(bytes(path("curve.origin.json"))).object();
    EXPECT_EQ(curve["inputs"].toArray().size(), 1);
    EXPECT_EQ(curve["inputs"].toArray()[0].toObject()["quality"].toInt(), 1);
    editor()->closeRequested();
    settle();
    workbench->qualityCheck().start();
    ASSERT_NE(table, nullptr);
    table->exportTo(path("late.csv"));
    EXPECT_FALSE(QFile::exists(path("late.origin.json"))) << "of another check";
    EXPECT_TRUE(messages(MessageLevel::Warning).last().contains("not known any more"));
}

TEST_F(Report, says_what_is_missing_and_where_it_could_not_be_written) {
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

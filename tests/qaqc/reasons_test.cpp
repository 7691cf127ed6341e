#include "QualityCheckFixture.h"

#include "filegrader.h"

#include <QDir>

using Reasons = QualityCheckTest;

namespace {

QString byGrader(const QString& name, const gradereport::EngineSettings& settings) {
    const QString path = QDir(VORN_EXAMPLES).filePath(name);
    const auto outcome = grade::gradeFile(path.toStdString(), settings, gradereport::Curves::leftOut);
    return QString::fromStdString(std::get<grade::GradedFile>(outcome).record.reason);
}

} // namespace

TEST_F(Reasons, stand_with_each_curve_as_the_batch_grader_gives_them_and_follow_sliders_and_language) {
    const QStringList names{"good-clean-01.S00", "double-clean-01.S00", "flat-broad-01.S00"};
    workbench->window().resize(1280, 1500); // so that all three are in sight
    dropNamed(names);
    select(names);
    gradereport::EngineSettings settings;
    const auto agree = [&] {
        ASSERT_EQ(viewers().size(), names.size());
        for (const TechPlot::VKViewer2D* const viewer : viewers()) {
            ASSERT_TRUE(viewer->isVisible());
            EXPECT_EQ(viewer->note(), byGrader(viewer->name(), settings)) << viewer->name().toStdString();
        }
    };
    agree();
    move(sensitivity(), 60);
    settings.sensitivity = 1.0 - sensitivity().value();
    move(coelution(), 30);
    settings.coelution = coelution().value();
    move(height(), 450);
    settings.heightCriteria = height().value();
    agree();
    workbench->language().choose(LanguageSwitch::Language::French);
    settle();
    EXPECT_TRUE(viewers()[0]->note().contains(" pic")) << viewers()[0]->note().toStdString();
}

TEST_F(Reasons, outlive_the_project_and_go_with_the_check) {
    dropNamed({"good-clean-01.S00"});
    workbench->projects().create(path("other.vornproj"));
    select({"good-clean-01.S00"});
    ASSERT_EQ(viewers().size(), 1);
    EXPECT_EQ(viewers()[0]->note(), byGrader("good-clean-01.S00", {}));
    editor()->closeRequested();
    settle();
    workbench->qualityCheck().start();
    dropNamed({});
    EXPECT_TRUE(errors().isEmpty());
}

#include "QualityCheckFixture.h"

#include "SourceRockQAQCCtrl.h"
#include "TData.h"
#include "VKPlotterPeakIndexation.h"
#include "filegrader.h"

#include <QDir>
#include <QFile>

#include <cstring>

using namespace TechPlot;

namespace {

/// The grade of the batch grader and the tops as floats, as a plot holds them.
struct Graded {
    int code = -1;
    std::vector<float> x;
    std::vector<float> y;
};

Graded byGrader(const QString& path) {
    const auto outcome = grade::gradeFile(path.toStdString(), {}, gradereport::Curves::leftOut);
    Graded graded;
    if (const auto* const file = std::get_if<grade::GradedFile>(&outcome)) {
        graded.code = file->record.quality;
        for (const auto& peak : file->record.peaks) {
            graded.x.push_back(static_cast<float>(peak.x));
            graded.y.push_back(static_cast<float>(peak.y));
        }
    }
    return graded;
}

bool sameBits(const std::vector<float>& values, const float* others) {
    return values.empty() || std::memcmp(values.data(), others, values.size() * sizeof(float)) == 0;
}

} // namespace

class BothRoads : public QualityCheckTest {
protected:
    /// The codes in the manager's order, from the labels of the export.
    QStringList codes() {
        workbench->qualityCheck().exportForLearning();
        QFile file(folder.filePath("dataSR.txt"));
        file.open(QIODevice::ReadOnly);
        return QString::fromUtf8(file.readAll())
            .section("y=[", 1)
            .section(']', 0, 0)
            .split(';', Qt::SkipEmptyParts);
    }
};

TEST_F(BothRoads, module_and_batch_grader_agree_on_every_example_to_the_last_bit) {
    const QDir examples(VORN_EXAMPLES);
    const QStringList files = examples.entryList({"*.S00", "*.s00"}, QDir::Files);
    ASSERT_GE(files.size(), 24);
    dropNamed(files);
    ASSERT_EQ(list().topLevelItemCount(), files.size());
    list().selectAll();
    settle();
    ASSERT_EQ(viewers().size(), files.size());
    const QVector<const VKViewer2D*> shown = viewers();
    const QStringList found = codes();
    ASSERT_EQ(found.size(), files.size());
    for (int i = 0; i < shown.size(); ++i) {
        const VKViewer2D* const viewer = shown[i];
        const Graded expected = byGrader(examples.filePath(viewer->name()));
        EXPECT_EQ(found[i].toInt(), expected.code) << viewer->name().toStdString();
        const TData* peaks = nullptr;
        for (const TNode* const plotter : viewer->plotters()) {
            if (const auto* const markers = dynamic_cast<const VKPlotterPeakIndexation*>(plotter)) {
                peaks = markers->data();
            }
        }
        ASSERT_NE(peaks, nullptr);
        ASSERT_EQ(static_cast<std::size_t>(peaks->count()), expected.x.size())
            << viewer->name().toStdString();
        EXPECT_TRUE(sameBits(expected.x, peaks->X())) << viewer->name().toStdString();
        EXPECT_TRUE(sameBits(expected.y, peaks->Y())) << viewer->name().toStdString();
    }
}

#include "QualityCheckFixture.h"

#include "VKObject2Well.h"

#include <QDragEnterEvent>

namespace {

TAnalysisData curve(std::vector<float> y) {
    std::vector<float> x;
    for (std::size_t i = 0; i < y.size(); ++i) {
        x.push_back(static_cast<float>(i) / 2);
    }
    return {std::move(x), std::move(y)};
}

} // namespace

class Gate : public QualityCheckTest {};

TEST_F(Gate, what_the_engine_refuses_is_named_and_left_out_and_the_rest_is_graded) {
    // The useful range begins behind its end: the only local minimum stands behind nine tenths.
    project().addAnalysis("<b>late</b>", {}, curve({9, 8, 7, 6, 5, 4, 3, 2, 1, 0, 5}));
    const VKObject2Well* const dataset = project().addWell("a dataset");
    const VKObject2* const late = analysis("<b>late</b>");
    drop({late, dataset, analysis("good-clean-01.S00")});
    ASSERT_EQ(list().topLevelItemCount(), 1);
    EXPECT_EQ(listColour(0), QColor(Qt::green));
    ASSERT_EQ(messages(MessageLevel::Error).size(), 1);
    EXPECT_TRUE(messages(MessageLevel::Error)[0].contains("<b>late</b>")) << "the name as it is written";
    EXPECT_EQ(messages(MessageLevel::Warning).size(), 1);

    drop({analysis("<b>late</b>")});
    EXPECT_EQ(list().topLevelItemCount(), 1);
}

TEST_F(Gate, a_curve_that_cannot_be_read_any_more_is_left_out) {
    const VKObject2Analysis* const gone = analysis("good-clean-01.S00");
    project().removeAnalysis(gone->key());
    drop({gone, analysis("good-clean-02.S00")});
    ASSERT_EQ(list().topLevelItemCount(), 1);
    EXPECT_EQ(list().topLevelItem(0)->text(0), "good-clean-02.S00");
}

TEST_F(Gate, foreign_data_are_refused_while_dragged_and_ignored_when_dropped) {
    QMimeData foreign;
    foreign.setText("an analysis");
    QDragEnterEvent enter({4, 4}, Qt::CopyAction, &foreign, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(list().viewport(), &enter);
    EXPECT_FALSE(enter.isAccepted());
    QDropEvent dropped(QPointF(4, 4), Qt::CopyAction, &foreign, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(list().viewport(), &dropped);
    EXPECT_EQ(list().topLevelItemCount(), 0);

    const std::unique_ptr<QMimeData> own(VKObject2Decoder::encode({analysis("good-clean-01.S00")}));
    QDragEnterEvent good({4, 4}, Qt::CopyAction, own.get(), Qt::LeftButton, Qt::NoModifier);
    good.ignore();
    QCoreApplication::sendEvent(list().viewport(), &good);
    EXPECT_TRUE(good.isAccepted());
}

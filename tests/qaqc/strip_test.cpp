#include "QualityCheckFixture.h"

#include "ChangeStrip.h"
#include "CheckSession.h"
#include "TAnalysisData.h"
#include "sourcerockqaqc/grading.h"
#include "sourcerockqaqc/rawsignal.h"

#include <QTest>

#include <numeric>

using gradereport::EngineSettings;

class Strips : public QualityCheckTest {
protected:
    const QStringList names{"flat-broad-01.S00", "good-noisy-01.S00", "good-shoulder-01.S00"};

    /// Grades at every position, or at every tenth, and counts an analysis once in each column.
    std::vector<int> byGrading(const SliderScale& scale, int width, int stride, double EngineSettings::*field,
                               bool complement) {
        std::vector<int> counts(static_cast<std::size_t>((scale.lastPosition() + width - 1) / width));
        for (const QString& name : names) {
            const TAnalysisData curve = project().curve(analysis(name)->key());
            const auto signal = algo::sr_qaqc::rawSignal<double, std::vector<double>>(
                curve.x().data(), curve.y().data(), curve.dataSize());
            int before = -1;
            std::size_t counted = counts.size();
            for (int position = 0; position <= scale.lastPosition(); position += stride) {
                EngineSettings at = settings();
                at.*field = complement ? 1.0 - scale.value(position) : scale.value(position);
                const int code = algo::sr_qaqc::qualityCode(*algo::sr_qaqc::grade(signal, at).chromatogram);
                const auto column = static_cast<std::size_t>((position - 1) / width);
                if (position > 0 && code != before && column != counted) {
                    ++counts[column];
                    counted = column;
                }
                before = code;
            }
        }
        return counts;
    }
    static int sum(const std::vector<int>& counts) {
        return std::accumulate(counts.begin(), counts.end(), 0);
    }
};

TEST_F(Strips, count_what_grading_at_every_position_counts) {
    dropNamed(names);
    move(coelution(), 60);
    move(height(), 170);
    ChangeScan& scan = session().scan();
    scan.finish();
    const auto bySensitivity = byGrading(sensitivity().scale(), 10, 10, &EngineSettings::sensitivity, true);
    const auto byCoelution = byGrading(coelution().scale(), 3, 1, &EngineSettings::coelution, false);
    const auto byHeight = byGrading(height().scale(), 7, 1, &EngineSettings::heightCriteria, false);
    EXPECT_EQ(scan.counts(ChangeScan::Sensitivity), bySensitivity);
    EXPECT_EQ(scan.counts(ChangeScan::Coelution), byCoelution);
    EXPECT_EQ(scan.counts(ChangeScan::Height), byHeight);
    EXPECT_GT(sum(bySensitivity), 2);
    EXPECT_GT(sum(byCoelution), 2);
    EXPECT_GT(sum(byHeight), 1);
}

TEST_F(Strips, follow_in_the_pauses_and_say_in_words_what_they_show) {
    auto* const strip = height().findChild<ChangeStrip*>();
    ASSERT_NE(strip, nullptr);
    EXPECT_TRUE(strip->textAt(strip->width() / 2).endsWith("no analysis changes grade here"));
    dropNamed(names);
    EXPECT_TRUE(strip->textAt(0).endsWith("being counted…"));
    QTRY_VERIFY(session().scan().isCurrent());
    const auto counts = session().scan().counts(ChangeScan::Height);
    ASSERT_GT(sum(counts), 0);
    move(coelution(), 0);
    EXPECT_FALSE(session().scan().isCurrent());
    delete list().takeTopLevelItem(0); // while it is about to count
    list().clear();
    QTRY_VERIFY(session().scan().isCurrent());
    EXPECT_EQ(sum(session().scan().counts(ChangeScan::Height)), 0);
}

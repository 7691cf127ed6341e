#include "QualityCheckFixture.h"

#include "TData.h"
#include "TPalette.h"
#include "TViewer2DEmitterConnect.h"
#include "VKPlotterSignal.h"
#include "VKRibbon.h"

#include <QDoubleSpinBox>
#include <QPixmapCache>
#include <QPointer>

#include <malloc.h>

using namespace TechPlot;

namespace {

const QString good = QStringLiteral("good-clean-01.S00");
const QString twin = QStringLiteral("double-clean-01.S00");
const QString flat = QStringLiteral("flat-broad-01.S00");
const QString shoulder = QStringLiteral("good-shoulder-01.S00");

const VKPlotterSignal& signalOf(const VKViewer2D& viewer) {
    const auto* const first = dynamic_cast<const VKPlotterSignal*>(viewer.plotters().at(0));
    return first != nullptr ? *first : dynamic_cast<const VKPlotterSignal&>(*viewer.plotters().at(1));
}

std::size_t heapInUse() {
    return mallinfo2().uordblks;
}

} // namespace

class QualityCheckRoads : public QualityCheckTest {
protected:
    QString gradeInTable(const QString& name) {
        for (const QStringList& row : gradesInTable()) {
            if (row[0] == name) {
                return row[1];
            }
        }
        return {};
    }
};

TEST_F(QualityCheckRoads, a_drop_lists_grades_colours_and_tabulates) {
    dropNamed({good, twin, flat});
    ASSERT_EQ(list().topLevelItemCount(), 3);
    EXPECT_EQ(list().topLevelItem(1)->text(0), twin);
    EXPECT_EQ(listColour(0), QColor(Qt::green));
    EXPECT_EQ(listColour(1), QColor("orange"));
    EXPECT_EQ(listColour(2), QColor(Qt::red));
    EXPECT_TRUE(viewers().isEmpty()) << "a drop alone shows no plot";
    openTable();
    EXPECT_EQ(gradeInTable(good), "good");
    EXPECT_EQ(gradeInTable(twin), "double");
    EXPECT_EQ(gradeInTable(flat), "flat");
    drop({analysis(good), analysis(good)->TIC()});
    ASSERT_EQ(list().topLevelItemCount(), 5) << "twice the same, and an analysis stands for its signal";
    EXPECT_EQ(listColour(4), QColor(Qt::green));
    EXPECT_EQ(gradesInTable().size(), 3) << "as the list was";
    openTable();
    EXPECT_EQ(gradesInTable().size(), 5);
    editor()->addAnalysis(nullptr);
    EXPECT_EQ(list().topLevelItemCount(), 5);
}

TEST_F(QualityCheckRoads, a_selection_shows_a_viewer_each_in_the_tables_order_and_an_empty_one_clears) {
    dropNamed({good, twin, flat, "three-peaks-01.S00", "good-noisy-01.S00"});
    openTable();
    QStringList rows;
    for (const QStringList& row : gradesInTable()) {
        rows += row[0];
    }
    list().selectAll();
    settle();
    EXPECT_EQ(onScreen(), rows);
    select({good, flat});
    ASSERT_EQ(viewers().size(), 2);
    for (const VKViewer2D* const viewer : viewers()) {
        EXPECT_EQ(signalOf(*viewer).getStyle()->colorPen(),
                  QColor(viewer->name() == good ? Qt::green : Qt::red));
    }
    select({twin});
    EXPECT_EQ(onScreen(), QStringList(twin));
    const TData& peaks = *markers().data();
    ASSERT_EQ(peaks.count(), 2);
    const VKPlotterSignal& signal = signalOf(*viewers().first());
    EXPECT_EQ(signal.rawData()->Y()[signal.nearestSample(double{peaks.X()[0]})], peaks.Y()[0])
        << "on the raw curve";
    EXPECT_EQ(markers().markerColor(0), QColor("green")) << "the palette's first stop";
    select({});
    EXPECT_TRUE(viewers().isEmpty());
    EXPECT_NE(dynamic_cast<TEditorMatrix*>(workspace().currentPage()), nullptr)
        << "an empty plot area is shown";
}

TEST_F(QualityCheckRoads, each_slider_writes_all_settings_and_list_and_open_table_follow) {
    dropNamed({good, flat, shoulder});
    openTable();
    EXPECT_EQ(gradeInTable(good), "good");
    for (SliderScientific* const slider : {&coelution(), &height()}) {
        editor()->settings()->sensitivity = 0; // to be written again with any slider
        move(*slider, lastPosition(*slider));
        EXPECT_EQ(editor()->settings()->sensitivity, 1.0 - sensitivity().value());
    }
    EXPECT_EQ(editor()->settings()->coelution, 2.0);
    EXPECT_EQ(editor()->settings()->heightCriteria, 5.0);
    EXPECT_EQ(gradeInTable(good), "flat");
    EXPECT_EQ(listColour(0), QColor(Qt::red));
    EXPECT_EQ(gradeInTable(shoulder), "") << "no peak is neither good nor double";
    EXPECT_EQ(listColour(2), QColor(Qt::red));
    move(height(), 0);
    EXPECT_EQ(gradeInTable(flat), "good");
}

TEST_F(QualityCheckRoads, closing_one_viewer_ends_the_module) {
    dropNamed({good, twin});
    const QPointer<QWidget> table = openTable();
    select({good, twin});
    const QPointer<Editor> bar = editor();
    const_cast<VKViewer2D*>(viewers().first())->requestClose();
    settle();
    EXPECT_TRUE(bar.isNull());
    EXPECT_FALSE(workbench->qualityCheck().isOpen());
    EXPECT_EQ(workbench->window().ribbon().bars().size(), 1);
    EXPECT_TRUE(viewers().isEmpty());
    ASSERT_FALSE(table.isNull()) << "a table outlives its module";
    EXPECT_EQ(gradeInTable(good), "good");
    workbench->qualityCheck().start();
    EXPECT_EQ(list().topLevelItemCount(), 0) << "and a new one begins anew";
}

TEST_F(QualityCheckRoads, a_second_start_brings_the_open_one_to_front_in_its_language) {
    const Editor* const first = editor();
    workbench->window().ribbon().setCurrentBar(workbench->window().ribbon().startBar());
    workbench->language().choose(LanguageSwitch::Language::French);
    workbench->qualityCheck().start();
    EXPECT_EQ(editor(), first);
    EXPECT_EQ(workbench->window().ribbon().currentBar(), first);
    EXPECT_EQ(list().headerItem()->text(0), "Signals to process") << "an open module keeps its language";
    dropNamed({good});
    select({good});
    editor()->closeRequested();
    settle();
    EXPECT_FALSE(workbench->qualityCheck().isOpen());
    workbench->qualityCheck().start();
    EXPECT_EQ(list().headerItem()->text(0), "Signaux de travail");
    EXPECT_EQ(height().findChild<QDoubleSpinBox*>()->text(), "2,00");
    workbench->language().choose(LanguageSwitch::Language::English);
}

TEST_F(QualityCheckRoads, a_thousand_selections_and_slider_steps_leave_memory_flat) {
    dropNamed({good, twin, flat});
    select({good});
    const auto run = [this](int rounds) {
        for (int round = 0; round < rounds; ++round) {
            list().topLevelItem(round % 3)->setSelected(round % 2 == 0);
            move(height(), round % 2);
            settle();
        }
        select({good});
        QPixmapCache::clear(); // of bounded size, and slow to reach it
    };
    run(100); // caches fill
    const std::size_t before = heapInUse();
    run(1000);
    EXPECT_LT(heapInUse(), before + 20'000) << "20 bytes a round";
}

TEST_F(QualityCheckRoads, the_export_for_learning_is_reached_by_name_and_shown) {
    dropNamed({good, flat});
    workbench->qualityCheck().exportForLearning();
    const QList<QByteArray> lines = bytes(path("dataSR.txt")).split('\n');
    ASSERT_EQ(lines.size(), 5); // two rows, the end of X, the labels, and what follows the last line end
    EXPECT_TRUE(lines[0].startsWith("X=["));
    EXPECT_EQ(lines[0].count(','), 20) << "a comma behind each of the 20 values";
    EXPECT_EQ(lines[2], "]");
    EXPECT_TRUE(lines[3] == "y=[1;3;]" || lines[3] == "y=[3;1;]") << lines[3].toStdString();
    EXPECT_EQ(workspace().currentPage()->windowTitle(), "dataSR.txt");
    ASSERT_EQ(messages(MessageLevel::Information).size(), 2);
    EXPECT_TRUE(messages(MessageLevel::Information)[0].contains("dataSR.txt"));
}

#include "QualityCheckFixture.h"

#include "ModuleObserver.h"
#include "TData.h"
#include "TPalette.h"
#include "TViewer2DEmitterConnect.h"
#include "TableView.h"
#include "VKDataModel.h"
#include "VKPlotterPeakIndexation.h"
#include "VKPlotterSignal.h"
#include "VKRibbon.h"

#include <QDoubleSpinBox>
#include <QFile>
#include <QPixmapCache>
#include <QSet>

#include <malloc.h>

using namespace TechPlot;

namespace {

const QString good = QStringLiteral("good-clean-01.S00");
const QString twin = QStringLiteral("double-clean-01.S00");
const QString flat = QStringLiteral("flat-broad-01.S00");
const QString shoulder = QStringLiteral("good-shoulder-01.S00");
const QString noisy = QStringLiteral("double-noisy-01.S00");

const VKPlotterSignal* signalOf(const VKViewer2D& viewer) {
    return dynamic_cast<const VKPlotterSignal*>(viewer.plotters().at(0)) != nullptr
               ? dynamic_cast<const VKPlotterSignal*>(viewer.plotters().at(0))
               : dynamic_cast<const VKPlotterSignal*>(viewer.plotters().at(1));
}

const VKPlotterPeakIndexation* peaksOf(const VKViewer2D& viewer) {
    for (const TNode* const plotter : viewer.plotters()) {
        if (const auto* const peaks = dynamic_cast<const VKPlotterPeakIndexation*>(plotter)) {
            return peaks;
        }
    }
    return nullptr;
}

std::size_t heapInUse() {
    return mallinfo2().uordblks;
}

} // namespace

class QualityCheckRoads : public QualityCheckTest {
protected:
    /// Name and grade of each row, as the table's reader sees them.
    QMap<QString, QString> gradesInTable() {
        const auto* const view = dynamic_cast<TableView*>(workspace().currentPage());
        QMap<QString, QString> grades;
        const VKDataModel& model = *view->model();
        for (int row = 0; row < model.rowCount(); ++row) {
            grades[model.headerData(row, Qt::Vertical, Qt::DisplayRole).toString()] =
                model.index(row, 0).data().toString();
        }
        return grades;
    }
    void openTable() { editor()->slotEventOccured(ModuleObserver::dataEditorAction); }
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
    const QMap<QString, QString> expected{{good, "good"}, {twin, "double"}, {flat, "flat"}};
    EXPECT_EQ(gradesInTable(), expected);
}

TEST_F(QualityCheckRoads, the_same_signal_twice_gives_two_items_and_analyses_stand_for_their_signal) {
    drop({analysis(good), analysis(good)->TIC()});
    EXPECT_EQ(list().topLevelItemCount(), 2);
    EXPECT_EQ(listColour(1), QColor(Qt::green));
    editor()->addAnalysis(nullptr);
    EXPECT_EQ(list().topLevelItemCount(), 2);
}

TEST_F(QualityCheckRoads, a_selection_shows_a_viewer_each_and_an_empty_one_clears) {
    dropNamed({good, twin, flat});
    select({good, flat});
    QSet<QString> names;
    for (const VKViewer2D* const viewer : viewers()) {
        names.insert(viewer->name());
        EXPECT_EQ(viewer->plotters().size(), 2) << "markers and raw signal, and no smoothed one";
        EXPECT_EQ(signalOf(*viewer)->getStyle()->colorPen(),
                  QColor(viewer->name() == good ? Qt::green : Qt::red));
    }
    EXPECT_EQ(names, QSet<QString>({good, flat}));

    select({twin});
    ASSERT_EQ(viewers().size(), 1);
    const VKPlotterPeakIndexation& peaks = *peaksOf(*viewers().first());
    ASSERT_EQ(peaks.data()->count(), 2);
    const int middle = signalOf(*viewers().first())->nearestSample(double{peaks.data()->X()[0]});
    EXPECT_EQ(signalOf(*viewers().first())->rawData()->Y()[middle], peaks.data()->Y()[0])
        << "on the raw curve";
    EXPECT_EQ(peaks.markerColor(0), QColor("green")) << "the palette's first stop";
    select({});
    EXPECT_TRUE(viewers().isEmpty());
    EXPECT_NE(dynamic_cast<TEditorMatrix*>(workspace().currentPage()), nullptr)
        << "an empty plot area is shown";
}

TEST_F(QualityCheckRoads, viewers_keep_the_order_of_the_table) {
    const QStringList names{good, twin, flat, "three-peaks-01.S00", "good-noisy-01.S00"};
    dropNamed(names);
    openTable();
    const auto* const table = dynamic_cast<TableView*>(workspace().currentPage());
    QStringList rows;
    for (int row = 0; row < names.size(); ++row) {
        rows.append(table->model()->headerData(row, Qt::Vertical, Qt::DisplayRole).toString());
    }
    list().selectAll();
    settle();
    QStringList shown;
    for (const VKViewer2D* const viewer : viewers()) {
        shown.append(viewer->name());
    }
    EXPECT_EQ(shown, rows);
}

TEST_F(QualityCheckRoads, each_slider_writes_all_settings_and_the_open_table_follows) {
    EXPECT_EQ(editor()->settings()->sensitivity, 0.5);
    move(sensitivity(), position(sensitivity()) + 1);
    EXPECT_EQ(editor()->settings()->sensitivity, 1.0 - sensitivity().value());
    EXPECT_EQ(editor()->settings()->coelution, 1.25);

    dropNamed({good, twin, flat});
    openTable();
    EXPECT_EQ(gradesInTable()[good], "good");
    editor()->settings()->sensitivity = 0; // to be written again with any slider
    move(height(), lastPosition(height()));
    EXPECT_EQ(editor()->settings()->heightCriteria, 5.0);
    EXPECT_EQ(editor()->settings()->sensitivity, 1.0 - sensitivity().value());
    EXPECT_EQ(gradesInTable()[good], "flat");
    EXPECT_EQ(listColour(0), QColor(Qt::red));
    move(height(), 0);
    EXPECT_EQ(gradesInTable()[flat], "good");

    const auto markers = [this](const QString& name) {
        select({name});
        return peaksOf(*viewers().first())->data()->count();
    };
    dropNamed({shoulder, noisy});
    EXPECT_EQ(markers(shoulder), 1);
    move(coelution(), lastPosition(coelution()));
    EXPECT_EQ(editor()->settings()->coelution, 2.0);
    EXPECT_EQ(peaksOf(*viewers().first())->data()->count(), 0) << "the markers follow at once";
    EXPECT_EQ(viewers().first()->plotters().size(), 2);
    EXPECT_EQ(listColour(3), QColor(Qt::red)) << "no peak is neither good nor double";
    EXPECT_EQ(markers(noisy), 2);
    move(sensitivity(), lastPosition(sensitivity()));
    EXPECT_GT(peaksOf(*viewers().first())->data()->count(), 2) << "the higher, the more peaks";
}

TEST_F(QualityCheckRoads, tables_are_snapshots_of_the_list) {
    dropNamed({good});
    openTable();
    dropNamed({twin});
    EXPECT_EQ(gradesInTable().size(), 1);
    openTable();
    EXPECT_EQ(gradesInTable().size(), 2);
}

TEST_F(QualityCheckRoads, closing_one_viewer_ends_the_module) {
    dropNamed({good, twin});
    openTable();
    const QPointer<QWidget> table = workspace().currentPage();
    select({good, twin});
    const QPointer<Editor> bar = editor();
    const_cast<VKViewer2D*>(viewers().first())->requestClose();
    settle();
    EXPECT_TRUE(bar.isNull());
    EXPECT_FALSE(workbench->qualityCheck().isOpen());
    EXPECT_EQ(workbench->window().ribbon().bars().size(), 1);
    EXPECT_TRUE(viewers().isEmpty());
    ASSERT_FALSE(table.isNull()) << "a table outlives its module";
    EXPECT_EQ(gradesInTable()[good], "good");

    workbench->qualityCheck().start();
    EXPECT_EQ(list().topLevelItemCount(), 0) << "and a new one begins anew";
    dropNamed({good});
    select({good});
    editor()->closeRequested();
    settle();
    EXPECT_FALSE(workbench->qualityCheck().isOpen());
}

TEST_F(QualityCheckRoads, a_second_start_brings_the_open_one_to_front) {
    const Editor* const first = editor();
    workbench->window().ribbon().setCurrentBar(workbench->window().ribbon().startBar());
    workbench->qualityCheck().start();
    EXPECT_EQ(editor(), first);
    EXPECT_EQ(workbench->window().ribbon().currentBar(), first);
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
    QFile file(folder.filePath("dataSR.txt"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QStringList lines = QString::fromUtf8(file.readAll()).split('\n');
    ASSERT_EQ(lines.size(), 5); // two rows, the end of X, the labels, and what follows the last line end
    EXPECT_TRUE(lines[0].startsWith("X=["));
    EXPECT_EQ(lines[0].count(','), 20) << "a comma behind each of the 20 values";
    EXPECT_EQ(lines[2], "]");
    EXPECT_TRUE(lines[3] == "y=[1;3;]" || lines[3] == "y=[3;1;]") << lines[3].toStdString();
    EXPECT_EQ(workspace().currentPage()->windowTitle(), "dataSR.txt");
    ASSERT_EQ(messages(MessageLevel::Information).size(), 2);
    EXPECT_TRUE(messages(MessageLevel::Information)[0].contains("dataSR.txt"));

    move(height(), lastPosition(height()));
    workbench->qualityCheck().exportForLearning();
    file.seek(0);
    QFile again(file.fileName());
    ASSERT_TRUE(again.open(QIODevice::ReadOnly));
    const QStringList later = QString::fromUtf8(again.readAll()).split('\n');
    EXPECT_EQ(later.mid(0, 3), lines.mid(0, 3));
    EXPECT_EQ(later[3], "y=[3;3;]");
}

TEST_F(QualityCheckRoads, a_restart_finds_the_project_as_it_was) {
    const int stored = project().analyses().size();
    project().renameAnalysis(analysis(good)->key(), "kept");
    project().removeAnalysis(analysis(flat)->key());
    dropNamed({"kept"});
    workbench.reset();
    workbench = std::make_unique<Workbench>();
    workbench->projectCommands().openAtStart();
    ASSERT_NE(workbench->projects().projectDatabase(), nullptr);
    EXPECT_EQ(project().analyses().size(), stored - 1);
    EXPECT_NE(analysis("kept"), nullptr);
    EXPECT_TRUE(project().problems().isEmpty());
    EXPECT_TRUE(messages(MessageLevel::Error).isEmpty());
}

TEST_F(QualityCheckRoads, another_project_ends_the_modules_and_their_pages) {
    dropNamed({good});
    openTable();
    workbench->projects().create(folder.filePath("other.vornproj"));
    settle();
    EXPECT_EQ(workspace().currentPage(), nullptr);
    EXPECT_TRUE(project().analyses().isEmpty());
}

TEST_F(QualityCheckRoads, french_is_everywhere_at_once_and_in_a_module_opened_again) {
    workbench->language().choose(LanguageSwitch::Language::French);
    settle();
    EXPECT_TRUE(workbench->window().windowTitle().contains("Atelier"));
    EXPECT_EQ(list().headerItem()->text(0), "Signals to process") << "an open module keeps its language";
    editor()->closeRequested();
    settle();
    workbench->qualityCheck().start();
    EXPECT_EQ(list().headerItem()->text(0), "Signaux de travail");
    EXPECT_EQ(height().findChild<QDoubleSpinBox*>()->text(), "2,00");
    workbench->language().choose(LanguageSwitch::Language::English);
}

#include "QualityCheckFixture.h"

#include "SourceRockQAQCCtrl.h"
#include "SourceRockQAQCViewer.h"
#include "TAnalysisData.h"
#include "VKObject2Well.h"
#include "VKRibbon.h"
#include "VornCtrl.h"
#include "VornEditor.h"

#include <QMetaMethod>

#include <numeric>

using namespace Vorn::SourceRockQAQC;

class Controller : public QualityCheckTest {};

TEST_F(Controller, meta_objects_name_what_is_reached_by_name_in_this_order) {
    const std::pair<const QMetaObject*, QByteArray> expected[] = {
        {&SourceRockQAQCCtrl::staticMetaObject,
         "slotAnalysisAdded(const VKObject2Analysis*) showDataEditor() "},
        {&Editor::staticMetaObject,
         "signalAnalysisAdded(const VKObject2Analysis*) processExport() analysisDropEvent(QDropEvent*) "
         "processDragEnter(QDragEnterEvent*) processDragMove(QDragMoveEvent*) updateData() "
         "processItemsSelected() "},
        {&VornEditor::staticMetaObject,
         "closeRequested() filesDropped(QStringList) importAsked() fileDelete(QString) "
         "slotDrop(QStringList) slotImportButton() slotItemClicked(QTreeWidgetItem*,int) "},
        {&VornCtrl::staticMetaObject,
         "slotEditorHasBeenClosed() slotFilesDropped(QStringList) slotImportAsked() "
         "slotDeleteFileFromModel(QString) setVornParameters(QAbstractItemModel*) "
         "updateFileStatus(QString,importStatus) "}};
    for (const auto& [meta, names] : expected) {
        QByteArray found;
        for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
            found += meta->method(i).methodSignature() + ' ';
        }
        EXPECT_EQ(found, names);
    }
    SourceRockQAQCCtrl second;
    EXPECT_EQ(second.qt_metacast("VKModuleCtrl"), static_cast<VKModuleCtrl*>(&second));
    EXPECT_NE(second.qt_metacast("VKModuleCtrl"), static_cast<void*>(&second));
    EXPECT_EQ(second.qt_metacast("QObject"), static_cast<QObject*>(&second));
}

TEST_F(Controller, unknown_names_are_passed_over_in_a_display_and_fail_as_a_colour) {
    SourceRockQAQCCtrl second;
    EXPECT_NO_THROW(second.display({"nobody"}));
    try {
        second.getColor("nobody");
        FAIL() << "there is no such analysis";
    } catch (const std::exception& error) {
        EXPECT_TRUE(QString(error.what()).endsWith("\ncan not find the analysis with name nobody"))
            << error.what();
    }
}

TEST_F(Controller, a_viewer_manager_cut_off_from_its_module_does_not_end_it) {
    auto* const second = new SourceRockQAQCCtrl;
    dynamic_cast<ModuleLauncher&>(*ModuleLauncherInterface::returnMe()).adopt(second);
    SourceRockQAQCViewer viewers(second);
    viewers.closeViewers(); // harmless without any
    viewers.slotModuleClosing();
    viewers.slotViewerClosed();
    settle();
    EXPECT_EQ(workbench->window().ribbon().bars().size(), 3) << "start, the first module and the second";
}

TEST_F(Controller, an_empty_table_has_its_header_and_answers_for_two_roles) {
    const QAbstractItemModel& empty = *openTable()->model();
    EXPECT_EQ(empty.rowCount(), 0);
    EXPECT_EQ(empty.columnCount(), 1);
    EXPECT_EQ(empty.headerData(0, Qt::Horizontal, Qt::DisplayRole), "Quality");
    dropNamed({"double-clean-01.S00"});
    const QAbstractItemModel& table = *openTable()->model();
    EXPECT_EQ(table.index(0, 0).data(34), "double");
    EXPECT_FALSE(table.index(0, 0).data(Qt::EditRole).isValid());
}

TEST_F(Controller, what_the_engine_refuses_is_named_and_left_out_and_the_rest_is_graded) {
    // The useful range begins behind its end: the only local minimum stands behind nine tenths.
    std::vector<float> x(11);
    std::iota(x.begin(), x.end(), 0.0F);
    project().addAnalysis("<b>late</b>", {}, {x, {9, 8, 7, 6, 5, 4, 3, 2, 1, 0, 5}});
    const VKObject2Analysis* const gone = analysis("good-clean-02.S00");
    project().removeAnalysis(gone->key());
    drop({analysis("<b>late</b>"), project().addWell("a dataset"), analysis("good-clean-01.S00")});
    ASSERT_EQ(list().topLevelItemCount(), 1);
    EXPECT_EQ(listColour(0), QColor(Qt::green));
    ASSERT_EQ(errors().size(), 1);
    EXPECT_TRUE(errors()[0].contains("<b>late</b>")) << "the name as it is written";
    EXPECT_EQ(messages(MessageLevel::Warning).size(), 1);
    drop({analysis("<b>late</b>"), gone});
    EXPECT_EQ(list().topLevelItemCount(), 1) << "nor one that cannot be read any more";
}

TEST_F(Controller, foreign_data_are_refused_while_dragged_and_ignored_when_dropped) {
    QMimeData foreign;
    foreign.setText("an analysis");
    EXPECT_FALSE(drop(foreign));
    EXPECT_EQ(list().topLevelItemCount(), 0);
    EXPECT_TRUE(drop({analysis("good-clean-01.S00")}));
}

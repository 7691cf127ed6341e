#include "QualityCheckFixture.h"

#include "Application.h"
#include "SourceRockQAQCCtrl.h"
#include "SourceRockQAQCViewer.h"
#include "SrQaqcDataModel.h"
#include "TAnalysisData.h"
#include "VKObject2Signal.h"
#include "VKRibbon.h"
#include "sourcerockqaqc/rawsignal.h"

#include <QMetaMethod>

using Vorn::SourceRockQAQC::SourceRockQAQCCtrl;

namespace {

QStringList methodsOf(const QMetaObject& meta) {
    QStringList signatures;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        signatures.append(meta.method(i).methodSignature());
    }
    return signatures;
}

} // namespace

class Controller : public QualityCheckTest {};

TEST_F(Controller, meta_objects_name_what_is_reached_by_name_in_this_order) {
    EXPECT_EQ(methodsOf(SourceRockQAQCCtrl::staticMetaObject),
              QStringList({"slotAnalysisAdded(const VKObject2Analysis*)", "showDataEditor()"}));
    EXPECT_EQ(methodsOf(Editor::staticMetaObject),
              QStringList({"signalAnalysisAdded(const VKObject2Analysis*)", "processExport()",
                           "analysisDropEvent(QDropEvent*)", "processDragEnter(QDragEnterEvent*)",
                           "processDragMove(QDragMoveEvent*)", "updateData()", "processItemsSelected()"}));
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
    SourceRockQAQCCtrl second;
    Vorn::SourceRockQAQC::SourceRockQAQCViewer viewers(&second);
    viewers.closeViewers(); // harmless without any
    viewers.slotModuleClosing();
    viewers.slotViewerClosed();
    settle();
    EXPECT_EQ(workbench->window().ribbon().bars().size(), 3) << "start, the first module and the second";
}

TEST_F(Controller, an_empty_table_has_its_header_and_answers_for_two_roles) {
    using namespace Vorn::SourceRockQAQC;
    const auto manager = std::make_shared<SourceRockQAQCMgr>(std::make_shared<SourceRockQAQCSettings>());
    const SrQaqcDataModel empty(manager);
    EXPECT_EQ(empty.rowCount(), 0);
    EXPECT_EQ(empty.columnCount(), 1);
    EXPECT_EQ(empty.headerData(0, Qt::Horizontal, Qt::DisplayRole), "Quality");

    const TAnalysisData curve = project().curve(analysis("double-clean-01.S00")->key());
    manager->addAnalysis(algo::sr_qaqc::rawSignal<double, Values>(curve.x().data(), curve.y().data(),
                                                                  static_cast<int>(curve.x().size())),
                         "twin");
    const SrQaqcDataModel table(manager);
    EXPECT_EQ(table.data(table.index(0, 0), Qt::DisplayRole), "double");
    EXPECT_EQ(table.data(table.index(0, 0), 34), "double");
    EXPECT_FALSE(table.data(table.index(0, 0), Qt::EditRole).isValid());
    EXPECT_EQ(empty.rowCount(), 0);
}

#include "Interfaces.h"
#include "PlotFixture.h"
#include "TViewer2DEmitterConnect.h"
#include "VKError.h"
#include <QPointer>
#include <malloc.h>
#include <memory>

using namespace TechPlot;

namespace {

int& living() {
    static int count = 0;
    return count;
}

struct CountedSignal : VKPlotterSignal {
    CountedSignal() { ++living(); }
    ~CountedSignal() override { --living(); }
};

struct CountedViewer : VKViewer2DChroma {
    CountedViewer() { ++living(); }
    ~CountedViewer() override { --living(); }
};

} // namespace

class Ownership : public PlotTest {
protected:
    Ownership() { living() = 0; }

    // As a module does it: a viewer, a drawn curve, a curve that is made and never drawn, markers.
    static CountedViewer* fill(TEditorMatrix* matrix) {
        auto* viewer = new CountedViewer;
        viewer->setDeletable(false);
        auto* drawn = new CountedSignal;
        drawn->setRawData(data({0, 1, 2}, {1, 2, 1}));
        drawn->setDeletable(false);
        auto* undrawn = new CountedSignal;
        undrawn->setRawData(data({0, 1}, {1, 2}));
        undrawn->setDeletable(false);
        viewer->insertPlotter(marks({1}, {2}, {1}));
        viewer->insertPlotter(drawn);
        add(matrix, viewer);
        return viewer;
    }
};

TEST_F(Ownership, closing_disposes_of_shown_extracted_and_never_inserted_parts_after_the_event) {
    TGraphicCtrl control;
    TEditorMatrix* matrix = openMatrix(control);
    matrix->extractViewer(fill(matrix));
    fill(matrix);
    show(*matrix);
    EXPECT_EQ(living(), 6);
    control.closeEditor(false);
    EXPECT_EQ(control.getEditor(), nullptr);
    EXPECT_EQ(living(), 6) << "the running event may still use them";
    matrix->release();
    settle();
    EXPECT_EQ(living(), 0);

    fill(openMatrix(control));
    control.closeEditor(true);
    EXPECT_EQ(living(), 0);
}

TEST_F(Ownership, a_thousand_rebuilds_leave_memory_flat) {
    TGraphicCtrl control;
    const auto rebuild = [&] {
        auto* old = dynamic_cast<TEditorMatrix*>(control.getEditor());
        if (old != nullptr) {
            for (TViewer* viewer : QVector<TViewer*>(old->viewers()))
                old->extractViewer(viewer);
        }
        control.closeEditor(false);
        if (old != nullptr)
            old->release();
        TEditorMatrix* matrix = openMatrix(control);
        for (int i = 0; i < 2; ++i)
            fill(matrix);
        show(*matrix);
    };
    for (int i = 0; i < 100; ++i)
        rebuild();
    [[maybe_unused]] const std::size_t before = mallinfo2().uordblks;
    for (int i = 0; i < 900; ++i)
        rebuild();
    EXPECT_EQ(living(), 6);
#if !defined(__SANITIZE_ADDRESS__)
    EXPECT_LT(mallinfo2().uordblks, before + 100'000);
#endif
    control.closeEditor(false);
    settle();
    EXPECT_EQ(living(), 0);
}

TEST_F(Ownership, a_thousand_replaced_markers_leave_two_plotters) {
    TGraphicCtrl control;
    TEditorMatrix* matrix = openMatrix(control);
    CountedViewer* viewer = fill(matrix);
    show(*matrix);
    TNode* current = viewer->plotters().first();
    QPointer<TNode> first = current;
    for (int i = 0; i < 1000; ++i) {
        viewer->extractPlotter(current, true);
        current = marks({1}, {2}, {3});
        viewer->insertPlotter(current);
    }
    EXPECT_TRUE(first) << "disposed of later than the running event";
    settle();
    EXPECT_FALSE(first);
    EXPECT_EQ(viewer->plotters().size(), 2);
    EXPECT_EQ(viewer->plot()->itemList().size(), 3) << "the two and the grid";
    control.closeEditor(true);
}

TEST_F(Ownership, extracting_keeps_what_is_not_deletable_and_what_is_wanted_back) {
    VKViewer2DChroma viewer;
    const std::unique_ptr<VKPlotterSignal> kept(signal({0, 1}, {0, 1}));
    kept->setDeletable(false);
    viewer.insertPlotter(kept.get());
    viewer.insertPlotter(kept.get());
    viewer.insertPlotter(nullptr);
    EXPECT_EQ(viewer.plotters().size(), 1);
    viewer.extractPlotter(kept.get(), true);
    kept->setDeletable(true);
    viewer.insertPlotter(kept.get());
    VKViewer2DChroma other;
    other.insertPlotter(kept.get());
    EXPECT_TRUE(viewer.plotters().isEmpty()) << "a plotter is in one viewer";
    viewer.extractPlotter(kept.get(), true);
    EXPECT_EQ(kept->viewer(), &other) << "a stranger's plotter is left alone";
    other.extractPlotter(kept.get(), false);
    settle();
    EXPECT_EQ(kept->bounds(), QRectF(0, 0, 1, 1));

    show(other);
    auto* deleted = signal({0, 1}, {0, 1});
    other.insertPlotter(deleted);
    delete deleted;
    settle();
    EXPECT_TRUE(other.plotters().isEmpty());
}

TEST_F(Ownership, an_undrawn_plotter_goes_with_the_editor_that_its_viewer_entered) {
    TGraphicCtrl first;
    TGraphicCtrl second;
    TEditorMatrix* older = openMatrix(first);
    openMatrix(second);
    fill(older);
    second.closeEditor(true);
    EXPECT_EQ(living(), 3);
    first.closeEditor(true);
    EXPECT_EQ(living(), 0);
}

TEST_F(Ownership, closing_asks_once_and_its_listener_may_end_everything) {
    auto control = std::make_unique<TGraphicCtrl>();
    TEditorMatrix* matrix = openMatrix(*control);
    CountedViewer* viewer = fill(matrix);
    int asked = 0;
    QObject::connect(viewer->getEmitor(), &TViewer2DEmitterConnect::emitClosed, [&](QWidget* closed) {
        ++asked;
        EXPECT_EQ(closed, viewer);
        viewer->requestClose();
        viewer->extractPlotter(viewer->plotters().first(), true);
        matrix->extractViewer(viewer);
        control.reset();
    });
    show(*matrix);
    viewer->requestClose();
    EXPECT_EQ(asked, 1);
    settle();
    EXPECT_EQ(living(), 0);

    TGraphicCtrl other;
    CountedViewer* deletable = fill(openMatrix(other));
    deletable->requestClose();
    settle();
    EXPECT_EQ(dynamic_cast<TEditorMatrix*>(other.getEditor())->viewers().size(), 1) << "it only asks";
    deletable->setDeletable(true);
    deletable->requestClose();
    settle();
    EXPECT_EQ(dynamic_cast<TEditorMatrix*>(other.getEditor())->viewers().size(), 0);
    other.closeEditor(true);
}

TEST_F(Ownership, the_workspace_shows_the_editor_until_it_is_closed_and_may_be_missing) {
    TGraphicCtrl control;
    control.showEditor();
    control.adjustViewerHV();
    TEditorMatrix* matrix = openMatrix(control);
    control.showEditor();
    Workspace workspace;
    control.showEditor();
    EXPECT_EQ(workspace.shown, QVector<QWidget*>{matrix});
    openMatrix(control);
    EXPECT_TRUE(workspace.shown.isEmpty());
    delete control.getEditor();
    EXPECT_EQ(control.getEditor(), nullptr);
    EXPECT_THROW(control.createEditor(static_cast<TEditorLoader::TypeEditor>(1)), VKError);
    settle();
}

#include "SourceRockQAQCViewer.h"

#include "SourceRockQAQCCtrl.h"
#include "TData.h"
#include "TEditorMatrix.h"
#include "TGraphicCtrl.h"
#include "TPalette.h"
#include "TStylePlotter.h"
#include "TViewer2DEmitterConnect.h"
#include "WorkspaceInterface.h"

#include <utility>

namespace Vorn::SourceRockQAQC {

namespace {

constexpr auto matrixEditor = static_cast<TechPlot::TEditorLoader::TypeEditor>(3);
constexpr auto lineSignal = static_cast<TechPlot::VKPlotterSignal::TypeSignal>(2);

TechPlot::TEditorMatrix* matrixOf(TechPlot::TGraphicCtrl* graphics) {
    return dynamic_cast<TechPlot::TEditorMatrix*>(graphics->getEditor());
}

} // namespace

// The palette outlives this object: the host keeps palettes under their names.
SourceRockQAQCViewer::SourceRockQAQCViewer(SourceRockQAQCCtrl* ctrl)
    : m_graphicCtrl(new TechPlot::TGraphicCtrl()), m_ctrl(ctrl) {
    m_graphicCtrl->createEditor(matrixEditor);
    const QList<QColor> colours = {QColor("green"), QColor("orange"), QColor("orange"), QColor("red")};
    m_palette = new TPalette(colours, "PeakColors");
}

SourceRockQAQCViewer::~SourceRockQAQCViewer() {
    delete m_graphicCtrl;
    m_viewModels.clear();
}

TechPlot::VKViewer2DChroma* SourceRockQAQCViewer::createViewer(const AnalysisPointer& analysis) {
    auto* const viewer = new TechPlot::VKViewer2DChroma();
    viewer->setDeletable(false);
    viewer->settingRead();
    viewer->setName(QString::fromStdString(analysis->name()));
    connectToViewerConst(viewer);
    connect(viewer->getEmitor(), &TechPlot::TViewer2DEmitterConnect::emitClosed, this,
            &SourceRockQAQCViewer::slotViewerClosed);
    return viewer;
}

TechPlot::VKPlotterSignal*
SourceRockQAQCViewer::createSignalPlotter(const std::shared_ptr<const Signal1D>& signal, const QString& name,
                                          const QColor& colour) {
    const auto n = static_cast<std::size_t>(signal->size());
    auto* const x = new float[n];
    auto* const y = new float[n];
    for (std::size_t i = 0; i < n; ++i) {
        x[i] = static_cast<float>(signal->X(i));
        y[i] = static_cast<float>(signal->Y(i));
    }
    auto* const plotter = new TechPlot::VKPlotterSignal();
    plotter->setRawData(new TechPlot::TData(static_cast<int>(n), x, y)); // takes the arrays over
    plotter->settingRead();
    plotter->setDeletable(false);
    plotter->getStyle()->setColorPen(colour);
    plotter->setType(lineSignal);
    plotter->initMinMaxXYZC();
    plotter->setNameDisplay(name);
    return plotter;
}

TechPlot::VKPlotterPeakIndexation* SourceRockQAQCViewer::createPeakPlotter(const AnalysisPointer& analysis,
                                                                           const QString& name) {
    const auto& peaks = analysis->chromatogram()->peaks();
    const std::size_t n = peaks.size();
    auto* const x = new float[n];
    auto* const y = new float[n];
    auto* const colours = new float[n];
    auto* const texts = new QString[n];
    for (std::size_t i = 0; i < n; ++i) {
        x[i] = static_cast<float>(peaks[i].top()->x);
        y[i] = static_cast<float>(peaks[i].top()->y);
        colours[i] = static_cast<float>(peaks[i].category);
    }
    auto* const data = new TechPlot::TData(static_cast<int>(n), x, y); // takes all arrays over
    data->setColor(colours);
    data->setText(texts);
    auto* const plotter = new TechPlot::VKPlotterPeakIndexation(data);
    plotter->setColorPen(Qt::black);
    plotter->setColorBrush(Qt::blue);
    plotter->setPointSize(7.0);
    plotter->setPointVisible(true);
    plotter->setNameDisplay(name);
    plotter->setPalette(m_palette);
    return plotter;
}

void SourceRockQAQCViewer::addAnalysis(AnalysisPointer analysis) {
    TechPlot::TEditorMatrix* const matrix = matrixOf(m_graphicCtrl);
    TechPlot::VKViewer2DChroma* const viewer = createViewer(analysis);
    // A preview by count alone; the next update of the plots asks for the grade.
    const QColor colour = analysis->chromatogram()->peaks().size() == 1 ? Qt::green : Qt::red;
    auto* const signalPlotter =
        createSignalPlotter(analysis->signal(), QString::fromStdString(analysis->name()), colour);
    auto* const smoothedPlotter = createSignalPlotter(analysis->smoothed(), "smoothed", Qt::black);
    auto* const peakPlotter = createPeakPlotter(analysis, "");
    // The smoothed signal is kept up to date and not drawn: beside the raw line it reads as a second curve.
    viewer->insertPlotter(peakPlotter);
    viewer->insertPlotter(signalPlotter);
    viewer->setRefreshEnabled(false);
    matrix->insertRow(viewer, static_cast<int>(m_viewModels.size()));
    matrix->viewerAdded(viewer);
    viewer->setRefreshEnabled(true);
    m_viewModels[std::move(analysis)] = std::make_shared<SourceRockQAQCViewModel>(
        viewer, signalPlotter, smoothedPlotter, peakPlotter, nullptr);
}

void SourceRockQAQCViewer::updatePlots() {
    for (const auto& [analysis, viewModel] : m_viewModels) {
        const auto smoothed = analysis->smoothed();
        float* const y = viewModel->smoothedPlotter()->rawData()->Y();
        for (std::size_t i = 0; i < smoothed->size(); ++i) {
            y[i] = static_cast<float>(smoothed->Y(i));
        }
        TechPlot::VKPlotterSignal* const signalPlotter = viewModel->signalPlotter();
        signalPlotter->getStyle()->setColorPen(m_ctrl->getColor(analysis->name()));
        signalPlotter->getStyle()->setLineThickness(2.0);
        signalPlotter->refreshDraw();
        viewModel->replacePeakPlotter(createPeakPlotter(analysis, ""));
    }
}

void SourceRockQAQCViewer::displayAnalyses(std::vector<AnalysisPointer> analyses) {
    closeViewers();
    m_graphicCtrl->createEditor(matrixEditor);
    for (AnalysisPointer& analysis : analyses) {
        addAnalysis(std::move(analysis));
    }
    updatePlots();
    m_graphicCtrl->showEditor();
    m_graphicCtrl->adjustViewerHV();
    WorkspaceInterface::returnMe()->arrangeViewers(0);
}

void SourceRockQAQCViewer::closeViewers() {
    TechPlot::TEditorMatrix* const matrix = matrixOf(m_graphicCtrl);
    if (matrix != nullptr) {
        for (const auto& entry : m_viewModels) {
            matrix->extractViewer(entry.second->viewer());
        }
    }
    m_viewModels.clear();
    m_graphicCtrl->closeEditor(false);
    if (matrix != nullptr) {
        matrix->release();
    }
}

void SourceRockQAQCViewer::slotViewerClosed() {
    if (m_ctrl != nullptr) {
        m_ctrl->close(true);
    }
}

void SourceRockQAQCViewer::slotModuleClosing() {
    m_ctrl = nullptr; // first, which cuts the way back
    m_graphicCtrl->closeEditor(false);
}

} // namespace Vorn::SourceRockQAQC

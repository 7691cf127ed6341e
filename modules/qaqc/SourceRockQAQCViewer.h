#pragma once

#include "Engine.h"
#include "SourceRockQAQCViewModel.h"
#include "VKModuleViewerMgr.h"

#include <QColor>
#include <QString>

#include <map>
#include <memory>
#include <vector>

class TPalette;

namespace TechPlot {
class TGraphicCtrl;
}

namespace Vorn::SourceRockQAQC {

class SourceRockQAQCCtrl;

/// Turns analyses into plots: a viewer each, with the raw signal in its grade's colour and a marker on
/// the top of every peak. Closing any one viewer ends the module.
class SourceRockQAQCViewer : public VKModuleViewerMgr {
public:
    using AnalysisPointer = std::shared_ptr<const AnalysisData>;

    explicit SourceRockQAQCViewer(SourceRockQAQCCtrl* ctrl);
    ~SourceRockQAQCViewer() override;

    /// Appends a viewer.
    void addAnalysis(AnalysisPointer analysis);

    /// Replaces all viewers by those of `analyses`, in this order, and shows the plot area.
    void displayAnalyses(std::vector<AnalysisPointer> analyses);

    /// Shows the present results of the analyses on screen. Not after `slotModuleClosing`.
    void updatePlots();

    /// Leaves no viewer on screen.
    void closeViewers();

    void slotViewerClosed() override;
    void slotModuleClosing() override;

private:
    TechPlot::VKViewer2DChroma* createViewer(const AnalysisPointer& analysis);
    TechPlot::VKPlotterSignal* createSignalPlotter(const std::shared_ptr<const Signal1D>& signal,
                                                   const QString& name, const QColor& colour);
    TechPlot::VKPlotterPeakIndexation* createPeakPlotter(const AnalysisPointer& analysis,
                                                         const QString& name);

    std::map<AnalysisPointer, std::shared_ptr<SourceRockQAQCViewModel>> m_viewModels;
    TechPlot::TGraphicCtrl* m_graphicCtrl;
    TPalette* m_palette;
    SourceRockQAQCCtrl* m_ctrl;
};

} // namespace Vorn::SourceRockQAQC

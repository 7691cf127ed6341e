#pragma once

#include "VKPlotterPeakIndexation.h"
#include "VKPlotterSignal.h"
#include "VKViewer2DChroma.h"

namespace Vorn::SourceRockQAQC {

/// Which viewer and plotters were made for one analysis on screen, so that a refresh finds them. Owns
/// none of them: viewers belong to the plot area, plotters to their viewers.
class SourceRockQAQCViewModel {
public:
    SourceRockQAQCViewModel(TechPlot::VKViewer2DChroma* viewer, TechPlot::VKPlotterSignal* signalPlotter,
                            TechPlot::VKPlotterSignal* smoothedPlotter,
                            TechPlot::VKPlotterPeakIndexation* peakPlotter, TechPlot::TNode* reservedPlotter)
        : m_viewer(viewer), m_signalPlotter(signalPlotter), m_smoothedPlotter(smoothedPlotter),
          m_peakPlotter(peakPlotter), m_reservedPlotter(reservedPlotter) {}

    TechPlot::VKViewer2DChroma* viewer() const { return m_viewer; }
    TechPlot::VKPlotterSignal* signalPlotter() const { return m_signalPlotter; }
    TechPlot::VKPlotterSignal* smoothedPlotter() const { return m_smoothedPlotter; }
    TechPlot::VKPlotterPeakIndexation* peakPlotter() const { return m_peakPlotter; }
    TechPlot::TNode* reservedPlotter() const { return m_reservedPlotter; }

    /// Puts `plotter` into the viewer in the place of the present peak plotter.
    void replacePeakPlotter(TechPlot::VKPlotterPeakIndexation* plotter) {
        m_viewer->extractPlotter(m_peakPlotter, true);
        m_viewer->insertPlotter(plotter);
        m_peakPlotter = plotter;
    }

private:
    TechPlot::VKViewer2DChroma* m_viewer;
    TechPlot::VKPlotterSignal* m_signalPlotter;
    TechPlot::VKPlotterSignal* m_smoothedPlotter;
    TechPlot::VKPlotterPeakIndexation* m_peakPlotter;
    TechPlot::TNode* m_reservedPlotter;
};

} // namespace Vorn::SourceRockQAQC

#pragma once

#include "Engine.h"
#include "HelpInterface.h"
#include "ModuleEditorAbstract.h"
#include "VKRibbonModuleBar.h"

#include <memory>

class QDragEnterEvent;
class QDragMoveEvent;
class QDropEvent;
class QHBoxLayout;
class QVBoxLayout;
class SliderScientific;
class TModuleCtrl;
class VKListViewSignal;
class VKObject2Analysis;
class VKRibbonGroupExpandable;

namespace Vorn::SourceRockQAQC {

class SourceRockQAQCCtrl;

/// The ribbon bar of the quality check: the list of signals, which takes drops, a colour legend, and the
/// three sliders. Makes the settings that the engine shares; holds no result.
class SourceRockQAQCEditor : public VKRibbonModuleBar, public HelpInterface, public ModuleEditorAbstract {
    Q_OBJECT

public:
    explicit SourceRockQAQCEditor(SourceRockQAQCCtrl* ctrl);
    ~SourceRockQAQCEditor() override;

    /// The one settings object of the module; sliders write into it.
    std::shared_ptr<SourceRockQAQCSettings> settings() const { return m_settings; }

    void closeRequested() override;
    int getIdForHelp() const override;

    /// Lists one analysis and announces it, without grading the others again; null is ignored.
    void addAnalysis(const VKObject2Analysis* analysis);

    /// Paints the list's invisible root: 0 red, 1 green, 2 yellow, any other value leaves it.
    void setRootColor(int state);

signals:
    void signalAnalysisAdded(const VKObject2Analysis* analysis);

public slots:
    /// Reached by name, through the meta-object: no widget of this bar leads here.
    void processExport();
    void analysisDropEvent(QDropEvent* event);
    void processDragEnter(QDragEnterEvent* event);
    void processDragMove(QDragMoveEvent* event);
    void updateData();
    void processItemsSelected();

private:
    void buildRibbon(TModuleCtrl* ctrl);
    void buildContent();
    void buildList(QVBoxLayout* left);
    void buildSliders(QVBoxLayout* right);

    std::shared_ptr<SourceRockQAQCSettings> m_settings;
    int m_signalCount = 0;
    VKListViewSignal* m_signalList = nullptr;
    SliderScientific* m_coelutionSlider = nullptr;
    SliderScientific* m_sensitivitySlider = nullptr;
    SliderScientific* m_heightSlider = nullptr;
    SourceRockQAQCCtrl* m_ctrl;
    VKRibbonGroupExpandable* m_group = nullptr;
};

} // namespace Vorn::SourceRockQAQC

#include "SourceRockQAQCCtrl.h"

#include "ModuleLauncherInterface.h"
#include "RibbonInterface.h"
#include "SourceRockQAQCEditor.h"
#include "SourceRockQAQCViewer.h"
#include "SrQaqcDataModel.h"
#include "TAnalysisData.h"
#include "TDatabase.h"
#include "VKObject2Signal.h"
#include "sourcerockqaqc/rawsignal.h"

#include <algorithm>

VORN_KEEP_TR(Vorn::SourceRockQAQC::SourceRockQAQCCtrl)

namespace Vorn::SourceRockQAQC {

// The editor makes the settings that the manager shares, so it comes first.
SourceRockQAQCCtrl::SourceRockQAQCCtrl()
    : VKModuleCtrl("vkVorn"), m_editor(new SourceRockQAQCEditor(this)),
      m_viewer(new SourceRockQAQCViewer(this)),
      m_manager(std::make_shared<SourceRockQAQCMgr>(m_editor->settings())) {
    RibbonInterface::returnMe()->addModuleBar(m_editor, true, true);
    connect(m_editor, &SourceRockQAQCEditor::signalAnalysisAdded, this,
            &SourceRockQAQCCtrl::slotAnalysisAdded);
}

SourceRockQAQCCtrl::~SourceRockQAQCCtrl() {
    RibbonInterface::returnMe()->removeModuleBar(m_editor);
    delete m_editor;
    delete m_viewer;
}

void SourceRockQAQCCtrl::update() {
    m_manager->update();
    m_viewer->updatePlots();
}

void SourceRockQAQCCtrl::display(std::vector<std::string> names) {
    const auto isNamed = [names = std::move(names)](const AnalysisData& analysis) {
        return std::find(names.begin(), names.end(), analysis.name()) != names.end();
    };
    m_viewer->displayAnalyses(m_manager->getAnalyses(isNamed));
}

QColor SourceRockQAQCCtrl::getColor(const std::string& name) const {
    switch (m_manager->getQuality(name)) {
    case 1:
        return Qt::green;
    case 2:
        return QColor("orange");
    default:
        return Qt::red;
    }
}

void SourceRockQAQCCtrl::close(bool) {
    m_viewer->closeViewers();
    m_editor->QWidget::close();
    ModuleLauncherInterface::returnMe()->closeModule(this);
}

void SourceRockQAQCCtrl::exportMachineLearning() {
    m_manager->exportData();
}

void SourceRockQAQCCtrl::slotAnalysisAdded(const VKObject2Analysis* signalDB) {
    const auto* const signalObject = dynamic_cast<const VKObject2Signal*>(signalDB);
    signalObject->db();
    TAnalysisData* data = nullptr;
    TechDB::TDatabase::analysisData(signalObject, &data);
    const auto signal =
        algo::sr_qaqc::rawSignal<double, Values>(data->dataX(), data->dataY(), data->dataSize());
    const auto analysis = m_manager->addAnalysis(signal, signalDB->displayName().toStdString());
    m_manager->getQuality(signalDB->displayName().toStdString()); // fails here, not at the first repaint
    m_viewer->addAnalysis(analysis);
}

void SourceRockQAQCCtrl::showDataEditor() {
    auto* const model = new SrQaqcDataModel(m_manager);
    model->setName("Source Rock", "New project");
    ModuleLauncherInterface::returnMe()->openDataEditor(model); // takes the model over
}

} // namespace Vorn::SourceRockQAQC

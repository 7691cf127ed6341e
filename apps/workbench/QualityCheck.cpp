#include "QualityCheck.h"

#include "LearningExport.h"
#include "MessageLoggerInterface.h"
#include "ModuleLauncher.h"
#include "RibbonHost.h"
#include "SliderScientific.h"
#include "SourceRockQAQCCtrl.h"
#include "TrialGate.h"
#include "VKListViewSignal.h"
#include "VKObject2Decoder.h"
#include "Workspace.h"

#include <QCoreApplication>
#include <QDragEnterEvent>
#include <QMimeData>

#include <memory>

QualityCheck::QualityCheck(RibbonHost& ribbon, ModuleLauncher& launcher, Workspace& workspace)
    : m_workspace(workspace), m_ribbon(ribbon), m_launcher(launcher), m_gate(new TrialGate(this)) {
    connect(m_gate, &TrialGate::delivered, &m_workspace, &Workspace::refreshTables);
}

void QualityCheck::start() {
    if (m_bar != nullptr) {
        m_ribbon.addModuleBar(m_bar, true, true); // there already: comes to the front
        return;
    }
    // The module enters the ribbon while it is constructed, and tells nobody else which bar is its own.
    const auto noting =
        connect(&m_ribbon, &RibbonHost::barAdded, this, [this](VKRibbonModuleBar* bar) { m_bar = bar; });
    auto* const controller = new Vorn::SourceRockQAQC::SourceRockQAQCCtrl;
    disconnect(noting);
    m_launcher.adopt(controller);
    m_gate->guard(m_bar);
    const QList<SliderScientific*> sliders = m_bar->findChildren<SliderScientific*>();
    for (const SliderScientific* const slider : sliders) {
        // Behind the module's own connection, so that the tables read the new grades.
        connect(slider, &SliderScientific::valueChanged, &m_workspace, &Workspace::refreshTables);
    }
}

VKListViewSignal* QualityCheck::list() const {
    return m_bar == nullptr ? nullptr : m_bar->findChild<VKListViewSignal*>();
}

void QualityCheck::send(const QList<const VKObject2*>& objects) {
    if (objects.isEmpty()) {
        return;
    }
    start();
    QWidget* const target = list()->viewport();
    const std::unique_ptr<QMimeData> data(VKObject2Decoder::encode(objects));
    const QPoint place = target->rect().center();
    // Only what was entered can be dropped on.
    QDragEnterEvent enter(place, Qt::CopyAction, data.get(), Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &enter);
    QDropEvent drop(place, Qt::CopyAction, data.get(), Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &drop);
}

void QualityCheck::exportForLearning() {
    if (m_bar == nullptr) {
        MessageLoggerInterface::Warning(
            tr("There is nothing to export: open the quality check and drop analyses on it first.",
               "Il n'y a rien à exporter : ouvrez d'abord le contrôle qualité et déposez-y des analyses."));
        return;
    }
    LearningExport::run(*m_bar, m_workspace);
}

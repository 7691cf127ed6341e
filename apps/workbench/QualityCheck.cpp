#include "QualityCheck.h"

#include "CheckActions.h"
#include "CheckSession.h"
#include "LearningExport.h"
#include "MessageLoggerInterface.h"
#include "ModuleLauncher.h"
#include "MouseDrop.h"
#include "RibbonHost.h"
#include "SliderScientific.h"
#include "SourceRockQAQCCtrl.h"
#include "TEditor.h"
#include "TrialGate.h"
#include "VKDataModel.h"
#include "VKListViewSignal.h"
#include "VKObject2Decoder.h"
#include "Workspace.h"

#include <QMimeData>

#include <memory>

QualityCheck::QualityCheck(RibbonHost& ribbon, ModuleLauncher& launcher, Workspace& workspace)
    : m_workspace(workspace), m_ribbon(ribbon), m_launcher(launcher), m_gate(new TrialGate(this)),
      m_actions(new CheckActions(this)) {
    connect(m_gate, &TrialGate::delivered, &m_workspace, &Workspace::refreshTables);
    connect(&m_ribbon, &RibbonHost::removed, this, [this](const VKRibbonModuleBar* bar) {
        if (bar == m_bar) {
            delete m_session; // while the list and the sliders that it follows are there
        }
    });
    connect(&m_workspace, &Workspace::tableOpened, this, &QualityCheck::tableOpened);
    connect(&m_workspace, &Workspace::tableExported, this, &QualityCheck::tableExported);
    connect(&m_workspace, &Workspace::curvesShown, this, [this](TechPlot::TEditor* curves) {
        if (m_session != nullptr) {
            m_session->setCurves(curves);
        }
    });
    connect(&m_workspace, &Workspace::curvesExported, this,
            [this](const QString& path, const QStringList& viewers) {
                if (m_session != nullptr) {
                    m_session->writeOriginBeside(path, viewers);
                }
            });
}

/// The name that the module gives to the tables of its results.
bool QualityCheck::isResults(const VKDataModel& table) {
    return table.name() == QLatin1String("Source Rock") && table.project() == QLatin1String("New project");
}

void QualityCheck::tableOpened(const VKDataModel* table) {
    if (m_session != nullptr && isResults(*table)) {
        m_session->addResults(table);
    }
}

void QualityCheck::tableExported(const VKDataModel* table, const QString& path) {
    if (m_session != nullptr && m_session->holdsResults(table)) {
        m_session->writeOriginBeside(path);
    } else if (isResults(*table)) {
        MessageLoggerInterface::Warning(
            tr("The settings behind these grades are not known any more, since their quality check was "
               "closed: open it again and export its results.",
               "Les réglages de ces évaluations ne sont plus connus, car leur contrôle qualité a été fermé : "
               "rouvrez-le et exportez ses résultats."));
    }
}

void QualityCheck::start() {
    if (m_bar != nullptr) {
        m_ribbon.addModuleBar(m_bar, true, true); // there already: comes to the front
        return;
    }
    Vorn::SourceRockQAQC::SourceRockQAQCCtrl* controller = nullptr;
    m_bar = m_ribbon.barAddedBy([&controller] { controller = new Vorn::SourceRockQAQC::SourceRockQAQCCtrl; });
    m_launcher.adopt(controller);
    m_gate->guard(m_bar);
    m_session = CheckSession::begin(*m_bar, *m_actions);
    const QList<SliderScientific*> sliders = m_bar->findChildren<SliderScientific*>();
    for (const SliderScientific* const slider : sliders) {
        // Behind the module's own connection, so that the tables read the new grades.
        connect(slider, &SliderScientific::valueChanged, &m_workspace, &Workspace::refreshTables);
    }
}

CheckSession* QualityCheck::session() const {
    return m_session.data();
}

void QualityCheck::leaveProject() {
    if (m_session != nullptr) {
        m_session->grades().readAll();
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
    const std::unique_ptr<QMimeData> data(VKObject2Decoder::encode(objects));
    MouseDrop::on(*list()->viewport(), *data);
}

void QualityCheck::exportForLearning() {
    if (m_bar == nullptr) {
        MessageLoggerInterface::Warning(
            tr("There is nothing to export: open the quality check and drop analyses on it first.",
               "Il n'y a rien à exporter : ouvrez d'abord le contrôle qualité et déposez-y des analyses."));
        return;
    }
    const QString path = LearningExport::run(*m_bar, m_workspace);
    if (!path.isEmpty() && m_session != nullptr) {
        m_session->writeOriginBeside(path);
    }
}

#include "CheckSession.h"

#include "CheckActions.h"
#include "CheckReasons.h"
#include "CheckSelection.h"
#include "MessageLoggerInterface.h"
#include "SliderScientific.h"
#include "TViewerNotes.h"
#include "VKListViewSignal.h"
#include "VKRibbonModuleBar.h"

using TechPlot::TViewerNotes;

CheckSession* CheckSession::begin(VKRibbonModuleBar& bar, CheckActions& actions) {
    auto* const list = bar.findChild<VKListViewSignal*>();
    const std::optional<CheckDials> dials = CheckDials::of(bar);
    if (list == nullptr || !dials) {
        MessageLoggerInterface::Error(
            tr("This quality check has other sliders than those known here: it grades, but reasons and "
               "filters are missing. Check which version of the module is installed.",
               "Ce contrôle qualité a d'autres curseurs que ceux connus ici : il évalue, mais les raisons et "
               "les filtres manquent. Vérifiez quelle version du module est installée."));
        return nullptr;
    }
    return new CheckSession(bar, *list, *dials, actions);
}

CheckSession::CheckSession(VKRibbonModuleBar& bar, VKListViewSignal& list, const CheckDials& dials,
                           CheckActions& actions)
    : QObject(&bar), m_list(list), m_actions(actions), m_grades(list, dials, this),
      m_filter(list, m_grades, *actions.filterMenu(), this) {
    TViewerNotes::returnMe().setSource(
        [this](const QString& viewer) { return CheckReasons::reason(m_grades, viewer); });
    for (const SliderScientific* const slider : {dials.sensitivity(), dials.coelution(), dials.height()}) {
        connect(slider, &SliderScientific::valueChanged, this, &CheckSession::followSettings);
    }
    wireActions();
}

// The list and the sliders may be gone by now.
CheckSession::~CheckSession() {
    TViewerNotes::returnMe().setSource({});
    m_actions.markFilter(std::nullopt);
    m_actions.setOpen(false);
}

void CheckSession::wireActions() {
    connect(&m_actions, &CheckActions::stepRequested, this,
            [this](int direction) { CheckSelection::step(m_list, direction); });
    connect(&m_actions, &CheckActions::selectRequested, this, &CheckSession::select);
    connect(&m_actions, &CheckActions::filterRequested, this, &CheckSession::setFilter);
    m_actions.setOpen(true);
}

void CheckSession::followSettings() {
    TViewerNotes::returnMe().refresh();
    if (m_filter.only()) {
        m_filter.apply();
    }
}

void CheckSession::select(gradereport::GradeKind kind) {
    if (m_filter.only() && m_filter.only() != kind) {
        setFilter(std::nullopt); // it hides all that is asked for
    }
    CheckSelection::selectKind(m_list, m_grades, kind);
}

void CheckSession::setFilter(std::optional<gradereport::GradeKind> only) {
    m_filter.setOnly(only);
    m_actions.markFilter(only);
}

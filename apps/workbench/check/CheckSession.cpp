#include "CheckSession.h"

#include "CheckReasons.h"
#include "MessageLoggerInterface.h"
#include "SliderScientific.h"
#include "TViewerNotes.h"
#include "VKListViewSignal.h"
#include "VKRibbonModuleBar.h"

using TechPlot::TViewerNotes;

CheckSession* CheckSession::begin(VKRibbonModuleBar& bar) {
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
    return new CheckSession(bar, *list, *dials);
}

CheckSession::CheckSession(VKRibbonModuleBar& bar, VKListViewSignal& list, const CheckDials& dials)
    : QObject(&bar), m_grades(list, dials, this) {
    TViewerNotes::returnMe().setSource(
        [this](const QString& viewer) { return CheckReasons::reason(m_grades, viewer); });
    for (const SliderScientific* const slider : {dials.sensitivity(), dials.coelution(), dials.height()}) {
        connect(slider, &SliderScientific::valueChanged, &TViewerNotes::returnMe(), &TViewerNotes::refresh);
    }
}

// The list and the sliders may be gone by now.
CheckSession::~CheckSession() {
    TViewerNotes::returnMe().setSource({});
}

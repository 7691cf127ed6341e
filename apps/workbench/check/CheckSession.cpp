#include "CheckSession.h"

#include "ChangeStrip.h"
#include "CheckActions.h"
#include "CheckOrigin.h"
#include "CheckReasons.h"
#include "CheckReport.h"
#include "CheckSelection.h"
#include "MessageLoggerInterface.h"
#include "OriginFile.h"
#include "SliderScientific.h"
#include "TEditor.h"
#include "VKError.h"
#include "VKListViewSignal.h"
#include "VKRibbonGroup.h"
#include "VKRibbonModuleBar.h"

#include <QAction>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QSettings>

#include <array>
#include <exception>

namespace {

QString folderKey() {
    return QStringLiteral("workbench/reportFolder");
}

} // namespace

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
      m_filter(list, m_grades, *actions.filterMenu(), this), m_scan(m_grades, this) {
    for (const SliderScientific* const slider : {dials.sensitivity(), dials.coelution(), dials.height()}) {
        connect(slider, &SliderScientific::valueChanged, this, &CheckSession::followSettings);
    }
    bar.actionGroup()->addActionButton(actions.reportAction());
    addStrips();
    wireActions();
}

// The bar lives on for a while behind this: nothing of it may read what ends here.
CheckSession::~CheckSession() {
    for (const QPointer<ChangeStrip>& strip : qAsConst(m_strips)) {
        delete strip;
    }
    setCurves(nullptr);
    m_actions.markFilter(std::nullopt);
    m_actions.setOpen(false);
}

void CheckSession::wireActions() {
    connect(&m_actions, &CheckActions::stepRequested, this,
            [this](int direction) { CheckSelection::step(m_list, direction); });
    connect(&m_actions, &CheckActions::selectRequested, this, &CheckSession::select);
    connect(&m_actions, &CheckActions::filterRequested, this, &CheckSession::setFilter);
    connect(&m_actions, &CheckActions::reportRequested, this, &CheckSession::askWhereToReport);
    m_actions.setOpen(true);
}

void CheckSession::setCurves(TechPlot::TEditor* curves) {
    if (m_curves == curves) {
        return;
    }
    if (m_curves != nullptr) {
        m_curves->notes().setSource({});
    }
    m_curves = curves;
    if (curves != nullptr) {
        curves->notes().setSource(
            [this](const QString& viewer) { return CheckReasons::reason(m_grades, viewer); });
    }
}

void CheckSession::addResults(const QObject* table) {
    m_results.insert(table);
    connect(table, &QObject::destroyed, this, [this, table] { m_results.remove(table); });
}

void CheckSession::writeOriginBeside(const QString& exported, const QStringList& names) {
    try {
        OriginFile::writeBeside(exported, CheckOrigin::of(m_grades, names));
    } catch (const std::exception& error) {
        VKError::dispatchError(error);
    }
}

void CheckSession::writeReport(const QString& path) {
    try {
        CheckReport(m_grades).write(path);
    } catch (const std::exception& error) { // memory may give out as well
        VKError::dispatchError(error);
    }
}

void CheckSession::askWhereToReport() {
    const QDir folder(QSettings().value(folderKey(), QDir::homePath()).toString());
    auto* const dialog = new QFileDialog(m_list.window(), tr("HTML report", "Rapport HTML"), folder.path(),
                                         tr("HTML page (*.html)", "Page HTML (*.html)"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(QStringLiteral("html"));
    dialog->selectFile(QStringLiteral("grades.html"));
    connect(dialog, &QFileDialog::fileSelected, this, [this](const QString& path) {
        QSettings().setValue(folderKey(), QFileInfo(path).absolutePath());
        writeReport(path);
    });
    dialog->open();
}

void CheckSession::addStrips() {
    const CheckDials& dials = m_grades.dials();
    const std::array<SliderScientific*, ChangeScan::dialCount> sliders{dials.sensitivity(), dials.coelution(),
                                                                       dials.height()};
    for (std::size_t dial = 0; dial < sliders.size(); ++dial) {
        auto* const strip = new ChangeStrip(m_scan, static_cast<ChangeScan::Dial>(dial),
                                            sliders[dial]->slider(), sliders[dial]->scale().decimals());
        sliders[dial]->setUnderlay(strip);
        m_strips.append(strip);
    }
}

void CheckSession::followSettings() {
    m_scan.beginAnew();
    if (m_curves != nullptr) {
        m_curves->notes().refresh();
    }
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

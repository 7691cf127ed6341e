#pragma once

#include "ChangeScan.h"
#include "CheckFilter.h"
#include "CheckGrades.h"

#include <QObject>
#include <QPointer>
#include <QSet>
#include <QVector>

class ChangeStrip;
class CheckActions;
class VKListViewSignal;
class VKRibbonModuleBar;

namespace TechPlot {
class TEditor;
}

/// What the workbench adds to one open quality check, beside what the module does itself: the reason of each
/// grade above its curve, ways to select and filter by grade, and under each slider where grades change.
class CheckSession : public QObject {
    Q_OBJECT

public:
    /// For a bar that is complete and has no analysis yet. To be deleted before the bar is, at the
    /// latest when that leaves the ribbon; the actions outlive it. Null, with an Error on the log, for a bar
    /// without the list and the sliders of a quality check.
    static CheckSession* begin(VKRibbonModuleBar& bar, CheckActions& actions);
    ~CheckSession() override;

    CheckGrades& grades() { return m_grades; }
    CheckFilter& filter() { return m_filter; }
    ChangeScan& scan() { return m_scan; }

    /// Says the reasons of the grades above these curves from now on, in place of those before.
    void setCurves(TechPlot::TEditor* curves);

    /// Takes note of a table of results that was opened in this check: its cells follow the sliders.
    void addResults(const QObject* table);
    bool holdsResults(const QObject* table) const { return m_results.contains(table); }

    /// Writes what the grades rest on beside an export, of the analyses with these names, or of all without
    /// names; success and failure go to the log.
    void writeOriginBeside(const QString& exported, const QStringList& names = {});

    /// Writes the report; success and failure go to the log.
    void writeReport(const QString& path);

private:
    CheckSession(VKRibbonModuleBar& bar, VKListViewSignal& list, const CheckDials& dials,
                 CheckActions& actions);
    void wireActions();
    void addStrips();
    void followSettings();
    void askWhereToReport();
    void select(gradereport::GradeKind kind);
    void setFilter(std::optional<gradereport::GradeKind> only);

    VKListViewSignal& m_list;
    CheckActions& m_actions;
    CheckGrades m_grades;
    CheckFilter m_filter;
    ChangeScan m_scan;
    QPointer<TechPlot::TEditor> m_curves;
    QVector<QPointer<ChangeStrip>> m_strips; // the sliders' own, which read the scan
    QSet<const QObject*> m_results;
};

#pragma once

#include "gradereport/gradekind.h"

#include <QObject>

#include <optional>

class CheckGrades;
class QMenu;
class QToolButton;
class QTreeWidgetItem;
class VKListViewSignal;

/// Shows in the list of a quality check the analyses of one grade alone, and keeps to that while sliders move
/// and analyses are added. A button in the list's header says which, and how many of how many.
///
/// The list alone is filtered: a curve on screen whose grade changes stays there until another is selected,
/// so that it can be watched while a slider moves.
class CheckFilter : public QObject {
    Q_OBJECT

public:
    /// All of them outlive this object or end with it. The button opens the menu.
    CheckFilter(VKListViewSignal& list, CheckGrades& grades, QMenu& menu, QObject* parent);

    std::optional<gradereport::GradeKind> only() const { return m_only; }
    /// Takes what is hidden out of the selection. Nothing shows all.
    void setOnly(std::optional<gradereport::GradeKind> only);

    /// How many analyses the list shows.
    int shownCount() const;

public slots:
    /// Goes by the grades of this moment.
    void apply();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void applyTo(QTreeWidgetItem* item);
    void deselectHidden();
    void showState();

    VKListViewSignal& m_list;
    CheckGrades& m_grades;
    QToolButton* m_button;
    std::optional<gradereport::GradeKind> m_only;
};

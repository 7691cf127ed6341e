#include "CheckFilter.h"

#include "CheckActions.h"
#include "CheckGrades.h"
#include "TLineIcon.h"
#include "VKListViewSignal.h"

#include <QEvent>
#include <QItemSelectionModel>
#include <QLocale>
#include <QMenu>
#include <QToolButton>

CheckFilter::CheckFilter(VKListViewSignal& list, CheckGrades& grades, QMenu& menu, QObject* parent)
    : QObject(parent), m_list(list), m_grades(grades), m_button(new QToolButton) {
    m_button->setAutoRaise(true);
    m_button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_button->setIcon(TLineIcon::icon(QStringLiteral("filter")));
    m_button->setPopupMode(QToolButton::InstantPopup);
    m_button->setMenu(&menu);
    m_button->installEventFilter(this);
    m_list.setHeaderWidget(m_button);
    connect(&m_grades, &CheckGrades::added, this, [this](QTreeWidgetItem* item) {
        applyTo(item);
        showState();
    });
    connect(&m_grades, &CheckGrades::removed, this, &CheckFilter::showState);
    showState();
}

void CheckFilter::setOnly(std::optional<gradereport::GradeKind> only) {
    m_only = only;
    apply();
    deselectHidden();
}

void CheckFilter::apply() {
    for (int row = 0; row < m_list.topLevelItemCount(); ++row) {
        applyTo(m_list.topLevelItem(row));
    }
    showState();
}

void CheckFilter::applyTo(QTreeWidgetItem* item) {
    const bool hidden = m_only && m_grades.kind(item) != m_only;
    if (item->isHidden() != hidden) {
        item->setHidden(hidden);
    }
}

/// In one change of the selection, since each has all curves built anew.
void CheckFilter::deselectHidden() {
    QItemSelection hidden;
    const QModelIndexList selected = m_list.selectionModel()->selectedRows();
    for (const QModelIndex& index : selected) {
        if (m_list.isRowHidden(index.row(), index.parent())) {
            hidden.append(QItemSelectionRange(index));
        }
    }
    if (!hidden.isEmpty()) {
        m_list.selectionModel()->select(hidden, QItemSelectionModel::Deselect | QItemSelectionModel::Rows);
    }
}

int CheckFilter::shownCount() const {
    int shown = 0;
    for (int row = 0; row < m_list.topLevelItemCount(); ++row) {
        shown += m_list.topLevelItem(row)->isHidden() ? 0 : 1;
    }
    return shown;
}

void CheckFilter::showState() {
    const QLocale locale;
    const QString all = locale.toString(m_list.topLevelItemCount());
    const QString name = CheckActions::filterName(m_only);
    m_button->setText(
        m_only ? tr("%1: %2 of %3", "%1 : %2 sur %3").arg(name, locale.toString(shownCount()), all) : name);
    m_button->setToolTip(
        tr("Show only the analyses of one grade", "N'afficher que les analyses d'une évaluation"));
    m_button->setAccessibleName(m_button->text());
    m_list.setAllHiddenText(tr("None of the %1 analyses has this grade.\nShift+F9 shows all.",
                               "Aucune des %1 analyses n'a cette évaluation.\nMaj+F9 les affiche toutes.")
                                .arg(all));
}

bool CheckFilter::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::LanguageChange) {
        showState();
    }
    return QObject::eventFilter(watched, event);
}

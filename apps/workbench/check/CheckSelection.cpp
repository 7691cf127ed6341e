#include "CheckSelection.h"

#include "CheckActions.h"
#include "CheckGrades.h"
#include "MessageLoggerInterface.h"
#include "VKListViewSignal.h"

#include <QItemSelectionModel>

namespace {

/// The row to start from, in sight or not; outside the list where nothing is selected.
int startRow(const VKListViewSignal& list, int direction) {
    int start = direction > 0 ? -1 : list.topLevelItemCount();
    const QModelIndexList selected = list.selectionModel()->selectedRows();
    bool first = true;
    for (const QModelIndex& index : selected) {
        const bool further = direction > 0 ? index.row() > start : index.row() < start;
        if (first || further) {
            start = index.row();
        }
        first = false;
    }
    return start;
}

} // namespace

void CheckSelection::step(VKListViewSignal& list, int direction) {
    int row = startRow(list, direction) + direction;
    while (row >= 0 && row < list.topLevelItemCount() && list.topLevelItem(row)->isHidden()) {
        row += direction;
    }
    QTreeWidgetItem* const item = row < 0 ? nullptr : list.topLevelItem(row);
    if (item != nullptr) {
        list.setCurrentItem(item, 0, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        list.scrollToItem(item);
    }
}

void CheckSelection::selectKind(VKListViewSignal& list, CheckGrades& grades, gradereport::GradeKind kind) {
    QItemSelection found;
    for (int row = 0; row < list.topLevelItemCount(); ++row) {
        const QTreeWidgetItem* const item = list.topLevelItem(row);
        if (!item->isHidden() && grades.kind(item) == kind) {
            found.append(QItemSelectionRange(list.model()->index(row, 0)));
        }
    }
    if (found.isEmpty()) {
        MessageLoggerInterface::Information(
            tr("No analysis in the list has the grade <b>%1</b>; the selection stays as it was.",
               "Aucune analyse de la liste n'a l'évaluation <b>%1</b> ; la sélection reste inchangée.")
                .arg(CheckActions::filterName(kind)));
        return;
    }
    list.selectionModel()->select(found, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    list.scrollTo(found.first().topLeft());
}

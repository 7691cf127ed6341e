#include "NameDelegate.h"

#include "TPlainTip.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QToolTip>

bool NameDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                             const QModelIndex& index) {
    if (event->type() != QEvent::ToolTip || !index.isValid()) {
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    }
    const QRect cell = view->visualRect(index);
    const bool isCut = sizeHint(option, index).width() > cell.width();
    QString text = index.data(Qt::ToolTipRole).toString();
    if (text.isEmpty() && isCut) {
        text = index.data().toString();
    }
    QToolTip::showText(event->globalPos(), TPlainTip::of(text), view->viewport(), cell);
    return true;
}

#include "NameDelegate.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QToolTip>

QString NameDelegate::plainToolTip(const QString& text) {
    // A tooltip takes what looks like markup for markup, unless all of it is.
    return QStringLiteral("<span>%1</span>").arg(text.toHtmlEscaped());
}

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
    const QString tip = text.isEmpty() ? QString() : plainToolTip(text);
    QToolTip::showText(event->globalPos(), tip, view->viewport(), cell);
    return true;
}

#pragma once

#include <QStyledItemDelegate>

/// Draws the rows of the project tree. Where the model has no tooltip, a text that the column cuts is shown
/// whole in one. Both are plain text like everything here.
class NameDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;
};

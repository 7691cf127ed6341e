#pragma once

#include <QStyledItemDelegate>

/// Shows a cell as `CellText` writes it, a double with 15 digits at most, with the locale's decimal
/// separator: numbers to the right, texts to the left and on one line. What has no room is shown whole, with
/// all digits, in the tooltip.
class CellDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant& value, const QLocale& locale) const override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

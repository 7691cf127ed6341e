#pragma once

#include <QStyledItemDelegate>

/// Lets a person choose what a column of a `ColumnListModel` becomes, from a list that opens at once.
class ColumnTargetDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    explicit ColumnTargetDelegate(QObject* parent);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;

protected:
    /// With an arrow that tells of the list.
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
    /// Return chooses, and goes no further: the dialog would take it for a click on its default button.
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void finish(QWidget* editor);
};

#include "ColumnTargetDelegate.h"

#include "ColumnListModel.h"
#include "ImportMapping.h"
#include "TLineIcon.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QTimer>

namespace {

constexpr int arrowSize = 12;
constexpr int mostVisibleChoices = 16;

} // namespace

ColumnTargetDelegate::ColumnTargetDelegate(QObject* parent) : QStyledItemDelegate(parent) {}

QWidget* ColumnTargetDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                            const QModelIndex& index) const {
    const auto* model = qobject_cast<const ColumnListModel*>(index.model());
    if (model == nullptr) {
        return nullptr;
    }
    auto* box = new QComboBox(parent);
    const QStringList choices = model->choices(index.row());
    for (int target = 0; target < choices.size(); ++target) {
        if (target != ColumnMapping::notImported || !model->isIdentifier(index.row())) {
            box->addItem(choices[target], target);
        }
    }
    box->setMaxVisibleItems(mostVisibleChoices);
    // Editors are made in a const operation, and what they send at the end is not one.
    auto* self = const_cast<ColumnTargetDelegate*>(this); // NOLINT(cppcoreguidelines-pro-type-const-cast)
    connect(box, QOverload<int>::of(&QComboBox::activated), self, [self, box] { self->finish(box); });
    auto* opening = new QTimer(box); // once the view has placed it
    opening->setSingleShot(true);
    connect(opening, &QTimer::timeout, box, [box] { box->showPopup(); });
    opening->start(0);
    return box;
}

void ColumnTargetDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
    if (auto* box = qobject_cast<QComboBox*>(editor)) {
        box->setCurrentIndex(box->findData(index.data(Qt::EditRole)));
    }
}

void ColumnTargetDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                        const QModelIndex& index) const {
    const auto* box = qobject_cast<QComboBox*>(editor);
    if (box != nullptr && box->currentData() != index.data(Qt::EditRole)) {
        model->setData(index, box->currentData());
    }
}

void ColumnTargetDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    option->features |= QStyleOptionViewItem::HasDecoration;
    option->icon = TLineIcon::icon(QStringLiteral("chevron_down"));
    option->decorationSize = QSize(arrowSize, arrowSize);
    option->decorationPosition = QStyleOptionViewItem::Right;
    option->decorationAlignment = Qt::AlignCenter;
}

bool ColumnTargetDelegate::eventFilter(QObject* object, QEvent* event) {
    auto* editor = qobject_cast<QWidget*>(object);
    if (editor != nullptr && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            finish(editor);
            return true;
        }
    }
    return QStyledItemDelegate::eventFilter(object, event);
}

void ColumnTargetDelegate::finish(QWidget* editor) {
    emit commitData(editor);
    emit closeEditor(editor);
}

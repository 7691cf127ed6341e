#include "VKRibbonGroup.h"

#include "TToolButton.h"

#include <QAction>
#include <QHBoxLayout>

VKRibbonGroup::VKRibbonGroup(const QString& title, QWidget* parent)
    : QGroupBox(title, parent), m_row(new QHBoxLayout(this)) {
    setFlat(true);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
    m_row->setContentsMargins(0, 0, 0, 0);
    m_row->setAlignment(Qt::AlignLeft);
}

VKRibbonGroup::VKRibbonGroup(QBoxLayout* whole, QBoxLayout* row, QWidget* parent)
    : QGroupBox(parent), m_row(row) {
    setFlat(true);
    setLayout(whole);
}

QBoxLayout* VKRibbonGroup::layout() const {
    return qobject_cast<QBoxLayout*>(QGroupBox::layout());
}

void VKRibbonGroup::addWidget(QWidget* widget) {
    m_row->addWidget(widget);
}

QToolButton* VKRibbonGroup::insertButton(const QString& text, const QIcon& icon, int position,
                                         buttonStyle style) {
    auto* button = newButton(style);
    button->setText(text);
    button->setIcon(icon);
    const bool inside = position >= 0 && position < m_row->count();
    m_row->insertWidget(inside ? position : -1, button, 0, Qt::AlignTop);
    return button;
}

QToolButton* VKRibbonGroup::addActionButton(QAction* action, buttonStyle style) {
    auto* button = newButton(style);
    button->setDefaultAction(action);
    m_row->addWidget(button, 0, Qt::AlignTop);
    return button;
}

QToolButton* VKRibbonGroup::newButton(buttonStyle style) {
    auto* button = new TToolButton(this);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::StrongFocus);
    const bool large = style == LargeButton;
    button->setToolButtonStyle(large ? Qt::ToolButtonTextUnderIcon : Qt::ToolButtonTextBesideIcon);
    button->setIconSize(large ? QSize(32, 32) : QSize(16, 16));
    if (large)
        button->setMinimumSize(72, 72);
    return button;
}

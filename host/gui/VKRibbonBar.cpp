#include "VKRibbonBar.h"

#include "VKRibbonGroup.h"
#include "VKRibbonGroupExpandable.h"

#include <QHBoxLayout>

VKRibbonBar::VKRibbonBar(const QString& title, QWidget* parent)
    : QWidget(parent), m_mainLayout(new QHBoxLayout) {
    setWindowTitle(title);
    m_mainLayout->setSpacing(16);
    // Groups that don't grow stay at the left; those that do may take all the width.
    auto* frame = new QHBoxLayout(this);
    frame->setContentsMargins(16, 8, 16, 8);
    frame->addLayout(m_mainLayout, 1);
    frame->addStretch(0);
}

VKRibbonGroup* VKRibbonBar::addGroup(const QString& title) {
    auto* group = new VKRibbonGroup(title, this);
    m_mainLayout->addWidget(group);
    return group;
}

void VKRibbonBar::setTitle(const QString& title) {
    setWindowTitle(title);
}

void VKRibbonBar::closeRequested() {
    foldUp();
}

void VKRibbonBar::hide() {}

void VKRibbonBar::slotEventOccured(int) {}

void VKRibbonBar::slotCurrentBarHasChanged(VKRibbonBar* current) {
    if (current != this)
        foldUp();
}

void VKRibbonBar::foldUp() {
    for (auto* group : findChildren<VKRibbonGroupExpandable*>())
        group->closePopup();
}

#include "VKListViewVKObject2.h"

#include "VKObject2.h"
#include "VKObject2Decoder.h"

#include <QDropEvent>
#include <QKeyEvent>

VKListViewVKObject2::VKListViewVKObject2(QWidget* parent) : VKTreeWidget(parent) {
    connect(this, &VKTreeWidget::dragEnterCalled, this, &VKListViewVKObject2::answerDrag);
    connect(this, &VKTreeWidget::dragMoveCalled, this, &VKListViewVKObject2::answerDrag);
    connect(this, &VKTreeWidget::dropCalled, this, &VKListViewVKObject2::takeDrop);
}

VKListViewVKObject2::~VKListViewVKObject2() = default;

QTreeWidgetItem* VKListViewVKObject2::addObject(const VKObject2* object) {
    const VKObject2* const shown = object != nullptr ? shownFor(object) : nullptr;
    if (shown == nullptr) {
        return nullptr;
    }
    auto* const item = new QTreeWidgetItem({shown->displayName()});
    addTopLevelItem(item);
    emit objectAdded(item, shown);
    return item;
}

const VKObject2* VKListViewVKObject2::shownFor(const VKObject2* object) const {
    return object;
}

void VKListViewVKObject2::keyPressEvent(QKeyEvent* event) {
    if (!m_usesKeyPress || event->key() != Qt::Key_Delete) {
        VKTreeWidget::keyPressEvent(event);
        return;
    }
    qDeleteAll(selectedItems());
}

void VKListViewVKObject2::answerDrag(QDropEvent* event) const {
    if (m_automatic && VKObject2Decoder::canDecode(event->mimeData())) {
        event->acceptProposedAction();
    }
}

void VKListViewVKObject2::takeDrop(QDropEvent* event) {
    if (!m_automatic) {
        return;
    }
    const QList<const VKObject2*> objects = VKObject2Decoder::decodeObject(event->mimeData());
    for (const VKObject2* object : objects) {
        addObject(object);
    }
}

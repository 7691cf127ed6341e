#pragma once

#include "VKTreeWidget.h"

class VKObject2;

/// A list of stored objects, one top-level item each with the display name in column 0. The name is that of
/// the moment; the list holds no object.
class VKListViewVKObject2 : public VKTreeWidget {
    Q_OBJECT

public:
    /// Uses keys and is automatic.
    explicit VKListViewVKObject2(QWidget* parent = nullptr);
    ~VKListViewVKObject2() override;

    /// Whether the delete key takes the selected items out of the list (the project keeps what they stand
    /// for).
    void setUseKeyPress(bool use) { m_usesKeyPress = use; }

    /// Whether the list itself accepts a drag of objects that it can show, and adds what is dropped. If not,
    /// the listeners of the signals of VKTreeWidget decide.
    void setAutoMode(bool automatic) { m_automatic = automatic; }

    /// Adds an item at the end; null for an object that this list doesn't show, or for no object.
    QTreeWidgetItem* addObject(const VKObject2* object);

signals:
    /// The object that the new item stands for: the one shown for what was dropped or added.
    void objectAdded(QTreeWidgetItem* item, const VKObject2* object);

protected:
    /// The object to be listed when this one is dropped or added; null if this list doesn't show it.
    virtual const VKObject2* shownFor(const VKObject2* object) const;

    void keyPressEvent(QKeyEvent* event) override;

private:
    void answerDrag(QDropEvent* event) const;
    void takeDrop(QDropEvent* event);

    bool m_usesKeyPress = true;
    bool m_automatic = true;
};

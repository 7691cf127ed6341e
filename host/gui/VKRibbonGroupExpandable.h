#pragma once

#include "RibbonPopup.h"
#include "VKRibbonGroup.h"

#include <QPointer>

class QToolButton;
class VKRibbonBar;

/// A group with a heading row, which addWidget fills, and one large content. Pinned, the content stands in
/// the ribbon below the heading; otherwise a button in the heading lays it over the workspace, where it
/// stays until the button or Escape folds it up, so that objects can be dragged onto it.
class VKRibbonGroupExpandable : public VKRibbonGroup {
    Q_OBJECT

public:
    /// The bar becomes the parent; placing the group in the bar's layout is the caller's. The title is for
    /// assistive technology and the open button's help: the heading shows what is added to it.
    VKRibbonGroupExpandable(const QString& title, VKRibbonBar* bar);
    ~VKRibbonGroupExpandable() override;

    void setPinState(bool pinned);
    bool isPinned() const { return m_pinned; }
    /// Whether the user may pin, unpin and fold out. It is so from the start.
    void canBeExpanded(bool expandable);
    /// Takes the widget over and shows it; an earlier content is deleted.
    void setContent(QWidget* content);

    bool isOpen() const { return m_popup != nullptr && m_popup->isVisible(); }
    void openPopup();
    void closePopup();

signals:
    void pinStateChanged(bool pinned);

protected:
    void hideEvent(QHideEvent* event) override;

private:
    VKRibbonGroupExpandable(const QString& title, VKRibbonBar* bar, QBoxLayout* row);
    QToolButton* headingButton(const QString& icon);
    void showState();

    QPointer<QWidget> m_content;
    QPointer<RibbonPopup> m_popup;
    QToolButton* m_openButton;
    QToolButton* m_pinButton;
    bool m_pinned = true;
    bool m_expandable = true;
};

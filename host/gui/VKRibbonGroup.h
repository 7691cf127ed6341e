#pragma once

#include <QGroupBox>

class QAction;
class QBoxLayout;
class QIcon;
class QToolButton;

/// A titled group of a ribbon bar: buttons and other widgets in one row, as narrow as they allow.
class VKRibbonGroup : public QGroupBox {
    Q_OBJECT

public:
    enum buttonStyle {
        LargeButton = 0, // picture above the text
        SmallButton = 1, // picture beside the text
    };

    explicit VKRibbonGroup(const QString& title, QWidget* parent = nullptr);

    QBoxLayout* layout() const;
    void addWidget(QWidget* widget);
    /// A new button at the position, counted over all widgets of the group; any other position means behind
    /// the last. The group owns it.
    QToolButton* insertButton(const QString& text, const QIcon& icon, int position, buttonStyle style);
    /// A button that shows and triggers the action, behind the last widget.
    QToolButton* addActionButton(QAction* action, buttonStyle style = LargeButton);

protected:
    /// For groups with a layout of their own: addWidget puts into the row.
    VKRibbonGroup(QBoxLayout* whole, QBoxLayout* row, QWidget* parent);

private:
    QToolButton* newButton(buttonStyle style);

    QBoxLayout* m_row;
};

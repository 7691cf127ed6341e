#pragma once

#include <QToolButton>

/// A tool button that may be gone when its click has been dealt with: a dialog that the click opens lets
/// events pass, and they may end the part of the window that the button stands in. A plain tool button writes
/// to itself afterwards. For buttons without a menu, and for those that are a menu as a whole.
class TToolButton : public QToolButton {
    Q_OBJECT

public:
    using QToolButton::QToolButton;

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
};

#pragma once

#include <QWidget>

/// What lies over a window while files are dragged across it: a frame, and what a drop would do. Lets every
/// event through to what is below.
class DropCover : public QWidget {
    Q_OBJECT

public:
    /// Hidden at first. Belongs to the window and covers it.
    explicit DropCover(QWidget& window);

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
};

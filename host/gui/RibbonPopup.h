#pragma once

#include <QFrame>
#include <QPointer>

class QScrollArea;

/// A frame laid over the workspace of a window, right below the bar that it belongs to. It keeps inside the
/// window, at any size of it, and scrolls what doesn't fit. Clicks elsewhere leave it open.
class RibbonPopup : public QFrame {
    Q_OBJECT

public:
    explicit RibbonPopup(QWidget* window);

    /// Takes the content over until giveBack. The frame's left edge is the anchor's, its top the bottom of
    /// the bar.
    void open(QWidget* content, const QWidget* anchor, const QWidget* bar);
    void giveBack();

signals:
    void escaped();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void place();

    QScrollArea* m_area;
    QPointer<const QWidget> m_anchor;
    QPointer<const QWidget> m_bar;
};

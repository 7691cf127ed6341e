#pragma once

#include <QScrollArea>

class VKRibbonBar;

/// What the ribbon puts around a bar: as high as the bar needs, and scrolled sideways when the window is
/// narrower than the bar, so that nothing is cut.
class RibbonPage : public QScrollArea {
    Q_OBJECT

public:
    explicit RibbonPage(VKRibbonBar* bar);

    VKRibbonBar* bar() const { return m_bar; }
    /// Takes the bar out, without a parent.
    VKRibbonBar* takeBar();
    /// A page in the back asks for no room.
    void setInFront(bool inFront);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    int neededHeight() const;

    VKRibbonBar* m_bar; // compared, never used, once it is gone from the page
};

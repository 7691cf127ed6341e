#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <QString>

class QFrame;
class QProgressBar;

// The progress of one long operation, shown in a panel at the lower edge of the active window, or of the
// main window when none is active, for as long as this object lives. Without a window it only counts.
//
// It repaints the panel and never runs the event loop: nothing that the user does reaches the application
// before the operation is through.
class TProgressBarMgr {
public:
    // Progress runs from 0 to the total; a total below 1 counts as 1. Not shown unless visible.
    TProgressBarMgr(int total, const QString& text, bool visible);
    ~TProgressBarMgr();
    TProgressBarMgr(const TProgressBarMgr&) = delete;
    TProgressBarMgr& operator=(const TProgressBarMgr&) = delete;

    // Steps that go back or beyond the ends are bounded. With repaint, the panel shows the step, though not
    // more often than an eye can follow.
    void setProgress(int done, bool repaint);
    int progress() const { return m_done; }

private:
    void showPanel(const QString& text);

    int m_total;
    int m_done = 0;
    QPointer<QFrame> m_panel;
    QPointer<QProgressBar> m_bar;
    QElapsedTimer m_sinceRepaint;
};

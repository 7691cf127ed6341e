#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <QString>

class QWidget;
class QProgressBar;

/// The progress of one long operation, shown in the status bar of the main window in front, for as long as
/// this object lives. Without a main window it only counts.
///
/// It repaints its part and never runs the event loop: nothing that the user does reaches the application
/// before the operation is through.
class TProgressBarMgr {
public:
    /// Progress runs from 0 to the total; a total below 1 counts as 1. Not shown unless visible.
    TProgressBarMgr(int total, const QString& text, bool visible);
    ~TProgressBarMgr();
    TProgressBarMgr(const TProgressBarMgr&) = delete;
    TProgressBarMgr& operator=(const TProgressBarMgr&) = delete;

    /// Steps that go back or beyond the ends are bounded. With repaint, the step is seen at once, though not
    /// more often than an eye can follow.
    void setProgress(int done, bool repaint);
    int progress() const { return m_done; }

private:
    void showPanel(const QString& text);

    int m_total;
    int m_done = 0;
    QPointer<QWidget> m_panel;
    QPointer<QProgressBar> m_bar;
    QElapsedTimer m_sinceRepaint;
};

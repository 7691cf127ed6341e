#include "TProgressBarMgr.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMainWindow>
#include <QProgressBar>
#include <QStatusBar>

#include <algorithm>

namespace {

constexpr int gap = 8;
constexpr int barWidth = 240;
constexpr qint64 repaintPause = 40; // milliseconds

// The window in front, or behind a dialog the one that it belongs to.
QMainWindow* windowForProgress() {
    if (auto* const active = qobject_cast<QMainWindow*>(QApplication::activeWindow()))
        return active;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* const window : windows) {
        auto* const main = qobject_cast<QMainWindow*>(window);
        if (main != nullptr && main->isVisible())
            return main;
    }
    return nullptr;
}

} // namespace

TProgressBarMgr::TProgressBarMgr(int total, const QString& text, bool visible) : m_total(std::max(total, 1)) {
    if (visible)
        showPanel(text);
}

TProgressBarMgr::~TProgressBarMgr() {
    delete m_panel;
}

void TProgressBarMgr::showPanel(const QString& text) {
    QMainWindow* const window = windowForProgress();
    if (window == nullptr)
        return;
    QStatusBar* const place = window->statusBar();
    m_panel = new QWidget;
    auto* const label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    m_bar = new QProgressBar;
    m_bar->setRange(0, m_total);
    m_bar->setFixedWidth(barWidth);
    m_bar->setAccessibleName(text);
    auto* const row = new QHBoxLayout(m_panel);
    row->setContentsMargins(gap, 0, gap, 0);
    row->setSpacing(gap);
    row->addWidget(label);
    row->addWidget(m_bar);
    place->addPermanentWidget(m_panel);
    place->show();
    // Now, as no event is processed before the work begins.
    window->layout()->activate();
    place->layout()->activate();
    row->activate();
    m_panel->repaint();
    m_sinceRepaint.start();
}

void TProgressBarMgr::setProgress(int done, bool repaint) {
    m_done = std::clamp(done, 0, m_total);
    if (m_bar == nullptr)
        return;
    m_bar->setValue(m_done);
    const bool due = m_sinceRepaint.elapsed() >= repaintPause || m_done == m_total;
    if (!repaint || !due)
        return;
    m_panel->repaint();
    m_sinceRepaint.restart();
}

#include "TProgressBarMgr.h"

#include <QApplication>
#include <QFrame>
#include <QLabel>
#include <QMainWindow>
#include <QProgressBar>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int edge = 24;
constexpr int panelWidth = 400;
constexpr qint64 repaintPause = 40; // milliseconds

QWidget* windowForProgress() {
    if (QWidget* active = QApplication::activeWindow())
        return active;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && qobject_cast<QMainWindow*>(window) != nullptr)
            return window;
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
    QWidget* window = windowForProgress();
    if (window == nullptr)
        return;
    m_panel = new QFrame(window);
    m_panel->setFrameStyle(QFrame::StyledPanel);
    m_panel->setAutoFillBackground(true);
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    m_bar = new QProgressBar;
    m_bar->setRange(0, m_total);
    m_bar->setAccessibleName(text);
    auto* layout = new QVBoxLayout(m_panel);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->addWidget(label);
    layout->addWidget(m_bar);

    const int width = std::min(panelWidth, window->width());
    const int height = std::max(layout->heightForWidth(width), layout->sizeHint().height());
    m_panel->setGeometry((window->width() - width) / 2, window->height() - height - edge, width, height);
    m_panel->show();
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

#include "RibbonPopup.h"

#include <QKeyEvent>
#include <QScrollArea>
#include <QVBoxLayout>

RibbonPopup::RibbonPopup(QWidget* window) : QFrame(window), m_area(new QScrollArea(this)) {
    setFrameStyle(QFrame::StyledPanel);
    setAutoFillBackground(true);
    m_area->setFrameShape(QFrame::NoFrame);
    m_area->setWidgetResizable(true);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 8, 8, 8);
    layout->addWidget(m_area);
    window->installEventFilter(this);
}

void RibbonPopup::open(QWidget* content, const QWidget* anchor, const QWidget* bar) {
    m_anchor = anchor;
    m_bar = bar;
    m_area->setWidget(content);
    place();
    show();
    raise();
    content->setFocus(Qt::TabFocusReason);
}

void RibbonPopup::giveBack() {
    setVisible(false);
    m_area->takeWidget();
}

void RibbonPopup::place() {
    const QWidget* window = parentWidget();
    if (m_anchor == nullptr || m_bar == nullptr || m_area->widget() == nullptr)
        return;
    const QMargins margins = layout()->contentsMargins() + frameWidth();
    const QSize wanted = m_area->widget()->sizeHint().grownBy(margins);
    const QPoint below(m_anchor->mapTo(window, QPoint()).x(),
                       m_bar->mapTo(window, QPoint(0, m_bar->height())).y());
    const QSize size(qMin(wanted.width(), window->width()),
                     qMin(wanted.height(), window->height() - below.y()));
    setGeometry(QRect(QPoint(qMin(below.x(), window->width() - size.width()), below.y()), size));
}

bool RibbonPopup::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize && watched == parentWidget())
        place();
    return QFrame::eventFilter(watched, event);
}

void RibbonPopup::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape)
        return QFrame::keyPressEvent(event);
    emit escaped();
}

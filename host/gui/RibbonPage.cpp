#include "RibbonPage.h"

#include "VKRibbonBar.h"

#include <QEvent>
#include <QScrollBar>

RibbonPage::RibbonPage(VKRibbonBar* bar) : m_bar(bar) {
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    setWidget(bar);
    setInFront(false);
}

VKRibbonBar* RibbonPage::takeBar() {
    takeWidget();
    m_bar->removeEventFilter(this);
    return m_bar;
}

void RibbonPage::setInFront(bool inFront) {
    setSizePolicy(QSizePolicy::Expanding, inFront ? QSizePolicy::Fixed : QSizePolicy::Ignored);
}

int RibbonPage::neededHeight() const {
    if (widget() == nullptr)
        return 0;
    const bool scrolls = widget()->minimumSizeHint().width() > width();
    const int height = qMax(widget()->sizeHint().height(), widget()->minimumSizeHint().height());
    return height + (scrolls ? horizontalScrollBar()->sizeHint().height() : 0);
}

QSize RibbonPage::sizeHint() const {
    return {widget() != nullptr ? widget()->sizeHint().width() : 0, neededHeight()};
}

QSize RibbonPage::minimumSizeHint() const {
    return {160, neededHeight()};
}

bool RibbonPage::eventFilter(QObject* watched, QEvent* event) {
    if (watched == widget() && event->type() == QEvent::LayoutRequest)
        updateGeometry();
    return QScrollArea::eventFilter(watched, event);
}

void RibbonPage::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    updateGeometry();
}

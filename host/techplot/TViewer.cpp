#include "TViewer.h"

#include "TEditorRegistry.h"
#include "TViewer2DEmitterConnect.h"
#include "TViewerTitle.h"
#include "TavrelColors.h"
#include <QApplication>
#include <QPainter>
#include <QPointer>
#include <QVBoxLayout>

namespace TechPlot {

TViewer::TViewer(QWidget* parent)
    : QWidget(parent), m_emitter(new TViewer2DEmitterConnect(this)),
      m_serial(TEditorRegistry::returnMe().nextSerial()) {}

// The focus leaves while the base goes, when there is no viewer any more.
TViewer::~TViewer() {
    disconnect(m_focus);
}

void TViewer::setName(const QString& name) {
    m_name = name;
    setAccessibleName(name);
    if (m_title != nullptr)
        m_title->setName(name);
}

void TViewer::requestClose() {
    if (m_closing)
        return;
    m_closing = true;
    const QPointer<TViewer> self = this;
    emit m_emitter->emitClosed(this);
    if (self.isNull())
        return;
    m_closing = false;
    if (m_deletable) {
        hide();
        deleteLater();
    }
}

void TViewer::setReadout(const QString& text) {
    if (m_title != nullptr)
        m_title->setReadout(text);
}

void TViewer::showEvent(QShowEvent* event) {
    if (m_title == nullptr)
        build();
    QWidget::showEvent(event);
}

void TViewer::build() {
    QWidget* body = makeBody(); // first, and so before the title's buttons when Tab is pressed
    m_title = new TViewerTitle(this);
    m_title->setName(m_name);
    connect(m_title, &TViewerTitle::closeClicked, this, &TViewer::requestClose);
    connect(m_title, &TViewerTitle::exportClicked, this, &TViewer::exportRequested);
    m_focus = connect(qApp, &QApplication::focusChanged, this, &TViewer::followFocus);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(1, 1, 1, 1);
    rows->setSpacing(0);
    rows->addWidget(m_title);
    rows->addWidget(body, 1);
}

void TViewer::followFocus(const QWidget* old, const QWidget* now) {
    if (isAncestorOf(old) || isAncestorOf(now))
        update();
}

void TViewer::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool active = isAncestorOf(QApplication::focusWidget());
    painter.setPen(active ? TavrelColors::accent(palette()) : TavrelColors::line(palette()));
    painter.setBrush(palette().base());
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
}

} // namespace TechPlot

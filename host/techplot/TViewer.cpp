#include "TViewer.h"

#include "TEditorRegistry.h"
#include "TViewer2DEmitterConnect.h"
#include "TViewerNote.h"
#include "TViewerNotes.h"
#include "TViewerTitle.h"
#include "TavrelColors.h"
#include <QApplication>
#include <QEvent>
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
    askForNote();
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
    askForNote();
}

void TViewer::setNotes(const TViewerNotes* notes) {
    if (m_notes != nullptr)
        m_notes->disconnect(this);
    m_notes = notes;
    if (notes != nullptr)
        connect(notes, &TViewerNotes::changed, this, &TViewer::askForNote);
    askForNote();
}

QString TViewer::note() const {
    return m_note == nullptr ? QString() : m_note->text();
}

// One out of sight asks when it is shown.
void TViewer::askForNote() {
    if (m_note != nullptr && isVisible())
        m_note->setText(m_notes == nullptr ? QString() : m_notes->note(m_name));
}

void TViewer::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        askForNote();
    QWidget::changeEvent(event);
}

void TViewer::build() {
    QWidget* body = makeBody(); // first, and so before the title's buttons when Tab is pressed
    m_title = new TViewerTitle(this);
    m_title->setName(m_name);
    connect(m_title, &TViewerTitle::closeClicked, this, &TViewer::requestClose);
    connect(m_title, &TViewerTitle::exportClicked, this, &TViewer::exportRequested);
    m_note = new TViewerNote(this);
    m_focus = connect(qApp, &QApplication::focusChanged, this, &TViewer::followFocus);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(1, 1, 1, 1);
    rows->setSpacing(0);
    rows->addWidget(m_title);
    rows->addWidget(m_note); // above the plot, so that it is in sight where the viewer's foot is not
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

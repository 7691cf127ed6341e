#include "VKTreeWidget.h"

#include "TEmptyHint.h"
#include "TFileButton.h"
#include "TLocalFiles.h"
#include "TavrelColors.h"

#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QMetaMethod>
#include <QMimeData>
#include <QPainter>

VKTreeWidget::VKTreeWidget(QWidget* parent, const QString& dropText) : QTreeWidget(parent) {
    setDropText(dropText);
    setAcceptDrops(true);
}

void VKTreeWidget::setDropText(const QString& text) {
    m_dropText = text;
    setAccessibleDescription(text);
    viewport()->update();
}

QSize VKTreeWidget::sizeHint() const {
    // A header and four rows: enough to see what is there, low enough for a ribbon.
    return {qMax(256, fontMetrics().averageCharWidth() * 36), qMax(112, fontMetrics().height() * 7)};
}

QSize VKTreeWidget::minimumSizeHint() const {
    return {fontMetrics().averageCharWidth() * 24, fontMetrics().height() * 6};
}

bool VKTreeWidget::takesFilesOf(const QMimeData* offered) const {
    return isSignalConnected(QMetaMethod::fromSignal(&VKTreeWidget::dataDroppped)) &&
           !TLocalFiles::of(offered).isEmpty();
}

void VKTreeWidget::dragEnterEvent(QDragEnterEvent* event) {
    event->setAccepted(takesFilesOf(event->mimeData()));
    emit dragEnterCalled(event);
    setHovered(event->isAccepted());
}

void VKTreeWidget::dragMoveEvent(QDragMoveEvent* event) {
    event->setAccepted(takesFilesOf(event->mimeData()));
    emit dragMoveCalled(event);
    setHovered(event->isAccepted());
}

void VKTreeWidget::dragLeaveEvent(QDragLeaveEvent* event) {
    setHovered(false);
    event->accept();
}

void VKTreeWidget::dropEvent(QDropEvent* event) {
    setHovered(false);
    event->acceptProposedAction();
    emit dropCalled(event);
    if (takesFilesOf(event->mimeData()))
        emit dataDroppped(TLocalFiles::of(event->mimeData()));
}

void VKTreeWidget::connectNotify(const QMetaMethod& signal) {
    QTreeWidget::connectNotify(signal);
    if (m_headerWidget != nullptr || signal != QMetaMethod::fromSignal(&VKTreeWidget::dataDroppped))
        return;
    auto* const button = new TFileButton(this);
    connect(button, &TFileButton::chosen, this, &VKTreeWidget::dataDroppped);
    setHeaderWidget(button);
}

void VKTreeWidget::setHeaderWidget(QWidget* widget) {
    delete m_headerWidget;
    m_headerWidget = widget;
    m_headerWidget->setParent(this);
    updateGeometries();
    m_headerWidget->show();
}

// A widget in the header whose size has changed asks for its place anew.
bool VKTreeWidget::event(QEvent* event) {
    if (event->type() == QEvent::LayoutRequest)
        updateGeometries();
    return QTreeWidget::event(event);
}

void VKTreeWidget::updateGeometries() {
    QTreeWidget::updateGeometries();
    if (m_headerWidget == nullptr)
        return;
    const QRect room = header()->geometry();
    const QSize size = m_headerWidget->sizeHint().boundedTo(room.size());
    m_headerWidget->setGeometry(
        QStyle::alignedRect(layoutDirection(), Qt::AlignRight | Qt::AlignVCenter, size, room));
}

void VKTreeWidget::setAllHiddenText(const QString& text) {
    m_allHiddenText = text;
    viewport()->update();
}

bool VKTreeWidget::hidesAll() const {
    for (int row = 0; row < topLevelItemCount(); ++row) {
        if (!topLevelItem(row)->isHidden())
            return false;
    }
    return topLevelItemCount() > 0;
}

void VKTreeWidget::pasteFiles() {
    const QMimeData* const copied = QGuiApplication::clipboard()->mimeData();
    if (takesFilesOf(copied))
        emit dataDroppped(TLocalFiles::of(copied));
}

void VKTreeWidget::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Paste))
        return pasteFiles();
    QTreeWidgetItem* item = currentItem();
    if (item == nullptr || event->modifiers() != Qt::NoModifier || item->childCount() > 0)
        return QTreeWidget::keyPressEvent(event);
    switch (event->key()) {
    case Qt::Key_Left:
        return setCurrentItem(item, qMax(0, currentColumn() - 1));
    case Qt::Key_Right:
        return setCurrentItem(item, qMin(columnCount() - 1, currentColumn() + 1));
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        emit itemClicked(item, currentColumn());
        return;
    default:
        return QTreeWidget::keyPressEvent(event);
    }
}

void VKTreeWidget::setHovered(bool hovered) {
    m_hovered = hovered;
    viewport()->update();
}

void VKTreeWidget::paintEvent(QPaintEvent* event) {
    QTreeWidget::paintEvent(event);
    if (!m_allHiddenText.isEmpty() && hidesAll())
        TEmptyHint::paint(viewport(), m_allHiddenText, 12);
    const bool invites = topLevelItemCount() == 0 && !m_dropText.isEmpty();
    if (!invites && !m_hovered)
        return;
    QPainter painter(viewport());
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF frame = QRectF(viewport()->rect()).adjusted(4.5, 4.5, -4.5, -4.5);
    const QColor line = m_hovered ? TavrelColors::accent(palette()) : TavrelColors::line(palette());
    painter.setPen(QPen(line, m_hovered ? 2 : 1, m_hovered ? Qt::SolidLine : Qt::DashLine));
    painter.drawRoundedRect(frame, 4, 4);
    if (!invites)
        return;
    painter.setPen(TavrelColors::caption(palette()));
    painter.drawText(frame.adjusted(8, 4, -8, -4), Qt::AlignCenter | Qt::TextWordWrap, m_dropText);
}

#include "TViewerColumn.h"

#include "TEmptyHint.h"
#include "TViewer.h"
#include <QApplication>
#include <QEvent>
#include <QScrollBar>

namespace TechPlot {

namespace {
constexpr int gap = 8;
constexpr int leastLines = 14;
} // namespace

TViewerColumn::TViewerColumn(QWidget* parent) : QAbstractScrollArea(parent) {
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    viewport()->setBackgroundRole(QPalette::Window);
    setFocusPolicy(Qt::NoFocus);
}

TViewerColumn::~TViewerColumn() {
    for (TViewer* viewer : qAsConst(m_viewers))
        viewer->disconnect(this);
}

void TViewerColumn::insert(TViewer* viewer, int row) {
    m_viewers.insert(qBound(0, row, m_viewers.size()), viewer);
    viewer->setParent(viewport());
    connect(viewer, &QObject::destroyed, this, [this, viewer] {
        m_viewers.removeAll(viewer);
        arrangeLater();
        emit countChanged(m_viewers.size());
    });
    arrangeLater();
    emit countChanged(m_viewers.size());
}

bool TViewerColumn::take(TViewer* viewer) {
    if (m_viewers.removeAll(viewer) == 0)
        return false;
    viewer->disconnect(this);
    viewer->hide();
    arrangeLater();
    emit countChanged(m_viewers.size());
    return true;
}

int TViewerColumn::leastHeight() const {
    return fontMetrics().height() * leastLines;
}

void TViewerColumn::arrangeLater() {
    if (m_arrangePending)
        return;
    m_arrangePending = true;
    QApplication::postEvent(this, new QEvent(QEvent::LayoutRequest));
}

void TViewerColumn::arrange() {
    m_arrangePending = false;
    const int count = qMax(1, m_viewers.size());
    const int height = viewport()->height();
    m_rowHeight = qMax(leastHeight(), (height - gap * (count - 1)) / count);
    const int whole = count * (m_rowHeight + gap) - gap;
    verticalScrollBar()->setRange(0, qMax(0, whole - height));
    verticalScrollBar()->setPageStep(height);
    verticalScrollBar()->setSingleStep(qMax(1, m_rowHeight / 4));
    place();
}

void TViewerColumn::place() {
    const int top = verticalScrollBar()->value();
    const int right = verticalScrollBar()->maximum() > 0 ? gap : 0;
    for (int row = 0; row < m_viewers.size(); ++row) {
        TViewer* viewer = m_viewers.at(row);
        const QRect area(0, row * (m_rowHeight + gap) - top, viewport()->width() - right, m_rowHeight);
        const bool inSight = area.intersects(viewport()->rect());
        const bool kept = inSight || viewer->isAncestorOf(QApplication::focusWidget());
        if (kept)
            viewer->setGeometry(area);
        viewer->setVisible(kept);
    }
    viewport()->update();
}

TViewer* TViewerColumn::firstInSight() const {
    if (m_viewers.isEmpty())
        return nullptr;
    return m_viewers.at(qBound(0, verticalScrollBar()->value() / (m_rowHeight + gap), m_viewers.size() - 1));
}

bool TViewerColumn::event(QEvent* event) {
    if (event->type() == QEvent::LayoutRequest && m_arrangePending) {
        arrange();
        return true;
    }
    if (event->type() == QEvent::FontChange)
        arrangeLater();
    return QAbstractScrollArea::event(event);
}

void TViewerColumn::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    arrange();
}

void TViewerColumn::scrollContentsBy(int, int) {
    place();
}

bool TViewerColumn::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::Paint && m_viewers.isEmpty()) {
        paintEmpty();
        return true;
    }
    return QAbstractScrollArea::viewportEvent(event);
}

void TViewerColumn::paintEmpty() {
    TEmptyHint::paint(
        viewport(),
        tr("No curves to show.\nSelect one or more analyses in the module's list.",
           "Aucune courbe à afficher.\nSélectionnez une ou plusieurs analyses dans la liste du module."),
        gap);
}

} // namespace TechPlot

#include "LogList.h"

#include "LogDelegate.h"
#include "MessageLogModel.h"
#include "TEmptyHint.h"

#include <QHeaderView>
#include <QResizeEvent>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <algorithm>

namespace {

constexpr int wheelStep = 24;

} // namespace

LogList::LogList(QAbstractItemModel& model, QWidget* parent)
    : QTreeView(parent), m_delegate(new LogDelegate(this)) {
    setItemDelegate(m_delegate);
    setFrameShape(NoFrame);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setHeaderHidden(true);
    setIndentation(0);
    setAllColumnsShowFocus(true);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn); // its coming and going would wrap all texts anew
    setVerticalScrollMode(ScrollPerPixel);
    setModel(&model);
    header()->setMinimumSectionSize(1);
    header()->setSectionResizeMode(QHeaderView::Fixed);
    header()->setStretchLastSection(false);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this](int value) {
        if (!m_adjusts) {
            m_follows = value == verticalScrollBar()->maximum();
        }
    });
    fitColumns();
}

void LogList::setPlaceholder(const QString& text) {
    m_placeholder = text;
    viewport()->update();
}

void LogList::fitColumns() {
    const int level = LogDelegate::levelWidth(fontMetrics());
    const int time = LogDelegate::timeWidth(fontMetrics());
    const int text = std::max(viewport()->width() - level - time, 1);
    header()->resizeSection(MessageLogModel::LevelColumn, level);
    header()->resizeSection(MessageLogModel::TimeColumn, time);
    header()->resizeSection(MessageLogModel::TextColumn, text);
    m_delegate->setTextWidth(text);
    scheduleDelayedItemsLayout();
}

// The range of the scroll bar is set in here: what it does to the value is no choice of the user's.
void LogList::updateGeometries() {
    const QScopedValueRollback<bool> adjusting(m_adjusts, true);
    QTreeView::updateGeometries();
    verticalScrollBar()->setSingleStep(wheelStep);
    m_follows = m_follows || verticalScrollBar()->value() == verticalScrollBar()->maximum();
    if (m_follows) {
        verticalScrollBar()->setValue(verticalScrollBar()->maximum());
    }
}

// When the mouse leaves, as it does when a dialog opens over it, Qt lays new rows out while it holds a
// reference to the row that was under the mouse. That layout scrolls to the end, which puts another row under
// the mouse and frees the one referred to. So the layout is made before.
bool LogList::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::Leave || event->type() == QEvent::HoverLeave) {
        executeDelayedItemsLayout();
    }
    return QTreeView::viewportEvent(event);
}

void LogList::resizeEvent(QResizeEvent* event) {
    QTreeView::resizeEvent(event);
    if (event->size().width() != event->oldSize().width()) {
        fitColumns();
    }
}

void LogList::changeEvent(QEvent* event) {
    QTreeView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        m_delegate->forgetHeights();
        fitColumns();
    }
}

void LogList::paintEvent(QPaintEvent* event) {
    QTreeView::paintEvent(event);
    if (model()->rowCount() > 0) {
        return;
    }
    TEmptyHint::paint(viewport(), m_placeholder);
}

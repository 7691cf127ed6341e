#include "ProjectView.h"

#include "NameDelegate.h"
#include "ProjectTreeModel.h"
#include "TEmptyHint.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLocale>
#include <QScrollBar>
#include <QStyle>

namespace {

constexpr int hintMargin = 24;
constexpr int columnMargin = 16;
constexpr int lettersOfNames = 20; // the least that tells names apart
constexpr int branchIndent = 16;
constexpr int screensAhead = 3; // of rows that are there before they are scrolled to

} // namespace

ProjectView::ProjectView(ProjectTreeModel& model, QWidget* parent) : QTreeView(parent), m_model(model) {
    setFrameShape(QFrame::NoFrame);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setExpandsOnDoubleClick(false);
    setUniformRowHeights(true);
    setIndentation(branchIndent);
    setDragEnabled(true);
    setDragDropMode(DragOnly);
    setTextElideMode(Qt::ElideMiddle);
    setHorizontalScrollMode(ScrollPerPixel);
    setItemDelegate(new NameDelegate(this));
    setModel(&model);
    setUpHeader();
    connect(this, &QTreeView::expanded, this, [this](const QModelIndex& list) {
        if (m_model.rowCount(list) == 0) {
            m_model.readOn(list);
        }
    });
    // Not while rows are laid out, which moves the scroll bar too.
    m_pendingReading.setSingleShot(true);
    m_pendingReading.setInterval(0);
    connect(&m_pendingReading, &QTimer::timeout, this, &ProjectView::readOnInSight);
    const auto readSoon = [this] { m_pendingReading.start(); };
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, readSoon);
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this, readSoon);
}

ProjectView::~ProjectView() = default;

void ProjectView::setUpHeader() {
    header()->setStretchLastSection(false);
    header()->setSectionsMovable(false);
    header()->setSectionResizeMode(QHeaderView::Fixed);
    header()->setSectionResizeMode(ProjectTreeModel::NameColumn, QHeaderView::Stretch);
    sizeColumns();
}

void ProjectView::sizeColumns() {
    if (header()->count() != ProjectTreeModel::ColumnCount) {
        return;
    }
    const auto widthOf = [this](const QString& text) {
        return fontMetrics().horizontalAdvance(text) + columnMargin;
    };
    const int dates = widthOf(QLocale().toString(QDate(2028, 12, 28), QLocale::ShortFormat));
    const int points = widthOf(QLocale().toString(8'888'888));
    // As if the scroll bar were there, so that columns don't come and go with it.
    const int room = width() - style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    const int beforeName = 2 * indentation() + style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    const int rest = room - beforeName - fontMetrics().averageCharWidth() * lettersOfNames;
    setColumnHidden(ProjectTreeModel::DateColumn, rest < dates + points);
    setColumnHidden(ProjectTreeModel::PointsColumn, rest < points);
    header()->resizeSection(ProjectTreeModel::DateColumn, dates);
    header()->resizeSection(ProjectTreeModel::PointsColumn, points);
}

// NOLINTNEXTLINE(misc-no-recursion) as deep as the tree: three levels
void ProjectView::spanNames(const QModelIndex& parent, int first, int last, bool span) {
    for (int row = first; row <= last; ++row) {
        const QModelIndex name = m_model.index(row, ProjectTreeModel::NameColumn, parent);
        const ProjectNode& node = m_model.node(name);
        if (node.kind != ProjectNode::Kind::Analysis && !node.created.isValid()) {
            setFirstColumnSpanned(row, parent, span);
        }
        spanNames(name, 0, m_model.rowCount(name) - 1, span);
    }
}

bool ProjectView::isEmpty() const {
    return m_model.rowCount() == 0;
}

bool ProjectView::isShownOpen(const QModelIndex& list) const {
    return isExpanded(list) && (!list.parent().isValid() || isExpanded(list.parent()));
}

QModelIndex ProjectView::lastBelow(QModelIndex row) const {
    while (isExpanded(row) && m_model.rowCount(row) > 0) {
        row = m_model.index(m_model.rowCount(row) - 1, 0, row);
    }
    return row;
}

void ProjectView::readOnInSight() {
    const QModelIndexList lists = m_model.unfinishedLists();
    for (const QModelIndex& list : lists) {
        if (!isShownOpen(list)) {
            continue;
        }
        // What comes behind a row above all that is shown would move it.
        const QRect end = visualRect(lastBelow(list));
        if (end.bottom() >= 0 && end.top() < screensAhead * viewport()->height()) {
            m_model.readOn(list);
        }
    }
}

void ProjectView::readAllShown() {
    const QModelIndexList lists = m_model.unfinishedLists();
    for (const QModelIndex& list : lists) {
        if (isShownOpen(list)) {
            m_model.readRest(list);
        }
    }
}

void ProjectView::readWhole(const QModelIndex& branch) {
    m_model.readRest(branch);
    for (int row = 0; row < m_model.rowCount(branch); ++row) {
        m_model.readRest(m_model.index(row, 0, branch));
    }
}

void ProjectView::selectRestOfLists() {
    const QModelIndexList lists = m_model.unfinishedLists();
    for (const QModelIndex& list : lists) {
        const QModelIndex last = lastBelow(list);
        if (!isShownOpen(list) || !selectionModel()->isSelected(last) ||
            !selectionModel()->isSelected(indexBelow(last))) {
            continue;
        }
        const int before = m_model.rowCount(list);
        m_model.readRest(list);
        if (m_model.rowCount(list) > before) {
            selectionModel()->select(
                {m_model.index(before, 0, list), m_model.index(m_model.rowCount(list) - 1, 0, list)},
                QItemSelectionModel::Select | QItemSelectionModel::Rows);
        }
    }
}

void ProjectView::selectAll() {
    readAllShown();
    QTreeView::selectAll();
}

void ProjectView::keyboardSearch(const QString& search) {
    readAllShown();
    QTreeView::keyboardSearch(search);
}

QModelIndex ProjectView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
    if (action == MoveEnd) {
        readAllShown();
    }
    return QTreeView::moveCursor(action, modifiers);
}

void ProjectView::setHint(const QString& hint) {
    if (hint == m_hint) {
        return;
    }
    m_hint = hint;
    setAccessibleDescription(hint);
    viewport()->update();
}

void ProjectView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QTreeView::selectionChanged(selected, deselected);
    selectRestOfLists();
    emit selectionMayHaveChanged();
}

void ProjectView::rowsInserted(const QModelIndex& parent, int first, int last) {
    QTreeView::rowsInserted(parent, first, last);
    spanNames(parent, first, last, true);
    viewport()->update(); // the hint may lie where no row is painted
}

void ProjectView::rowsAboutToBeRemoved(const QModelIndex& parent, int first, int last) {
    spanNames(parent, first, last, false); // QTreeView would remember them for good
    QTreeView::rowsAboutToBeRemoved(parent, first, last);
}

void ProjectView::keyPressEvent(QKeyEvent* event) {
    const bool enters = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const QModelIndex branch = currentIndex().siblingAtColumn(0);
    if (enters && event->modifiers() == Qt::NoModifier && model()->hasChildren(branch)) {
        setExpanded(branch, !isExpanded(branch));
        return;
    }
    if (event->key() == Qt::Key_Asterisk) {
        readWhole(branch);
    }
    QTreeView::keyPressEvent(event);
}

void ProjectView::contextMenuEvent(QContextMenuEvent* event) {
    event->accept();
    if (event->reason() != QContextMenuEvent::Keyboard) {
        emit menuRequested(event->globalPos());
        return;
    }
    const QRect row = visualRect(currentIndex()).intersected(viewport()->rect());
    const QPoint place = row.isEmpty() ? viewport()->rect().topLeft() : row.bottomLeft();
    emit menuRequested(viewport()->mapToGlobal(place));
}

void ProjectView::paintEvent(QPaintEvent* event) {
    QTreeView::paintEvent(event);
    if (!isEmpty() || m_hint.isEmpty()) {
        return;
    }
    TEmptyHint::paint(viewport(), m_hint, hintMargin, Qt::AlignHCenter | Qt::AlignTop);
}

void ProjectView::resizeEvent(QResizeEvent* event) {
    QTreeView::resizeEvent(event);
    sizeColumns();
}

void ProjectView::changeEvent(QEvent* event) {
    QTreeView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange ||
        event->type() == QEvent::LanguageChange || event->type() == QEvent::LocaleChange) {
        sizeColumns();
    }
}

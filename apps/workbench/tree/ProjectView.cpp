#include "ProjectView.h"

#include "NameDelegate.h"
#include "ProjectTreeModel.h"
#include "TEmptyHint.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLocale>
#include <QStyle>

namespace {

constexpr int hintMargin = 24;
constexpr int columnMargin = 16;
constexpr int lettersOfNames = 20; // the least that tells names apart
constexpr int branchIndent = 16;

} // namespace

ProjectView::ProjectView(QAbstractItemModel& model, QWidget* parent) : QTreeView(parent) {
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
void ProjectView::spanNames(const QModelIndex& parent, int first, int last) {
    for (int row = first; row <= last; ++row) {
        const QModelIndex name = model()->index(row, ProjectTreeModel::NameColumn, parent);
        if (name.siblingAtColumn(ProjectTreeModel::DateColumn).data().toString().isEmpty() &&
            name.siblingAtColumn(ProjectTreeModel::PointsColumn).data().toString().isEmpty()) {
            setFirstColumnSpanned(row, parent, true);
        }
        spanNames(name, 0, model()->rowCount(name) - 1);
    }
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
    emit selectionMayHaveChanged();
}

void ProjectView::rowsInserted(const QModelIndex& parent, int first, int last) {
    QTreeView::rowsInserted(parent, first, last);
    spanNames(parent, first, last);
    viewport()->update(); // the hint may lie where no row is painted
}

void ProjectView::keyPressEvent(QKeyEvent* event) {
    const bool enters = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const QModelIndex branch = currentIndex().siblingAtColumn(0);
    if (enters && event->modifiers() == Qt::NoModifier && model()->hasChildren(branch)) {
        setExpanded(branch, !isExpanded(branch));
        return;
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

#include "ProjectFilterModel.h"

#include "NaturalOrder.h"
#include "ProjectTreeModel.h"
#include "VKError.h"
#include "VKObject2Decoder.h"

#include <algorithm>

using Kind = ProjectNode::Kind;

namespace {

QVector<int> placeOf(QModelIndex index) {
    QVector<int> place;
    for (; index.isValid(); index = index.parent()) {
        place.prepend(index.row());
    }
    return place;
}

} // namespace

ProjectFilterModel::ProjectFilterModel(ProjectTreeModel* model, QObject* parent)
    : QSortFilterProxyModel(parent), m_model(model), m_collator(NaturalOrder::collator()) {
    setRecursiveFilteringEnabled(true);
    setSourceModel(model);
    sort(ProjectTreeModel::NameColumn);
}

ProjectFilterModel::~ProjectFilterModel() = default;

void ProjectFilterModel::setFilter(const QString& filter) {
    m_filter = filter.trimmed();
    invalidateFilter();
}

bool ProjectFilterModel::matches(const ProjectNode& node) const {
    return ProjectTreeModel::shownName(node).contains(m_filter, Qt::CaseInsensitive);
}

void ProjectFilterModel::followLocale() {
    m_collator = NaturalOrder::collator();
    invalidate();
}

const ProjectNode& ProjectFilterModel::node(const QModelIndex& index) const {
    return m_model->node(mapToSource(index));
}

QModelIndexList ProjectFilterModel::topToBottom(const QModelIndexList& rows) {
    QVector<QPair<QVector<int>, QModelIndex>> placed;
    for (const QModelIndex& index : rows) {
        placed.append({placeOf(index), index.sibling(index.row(), ProjectTreeModel::NameColumn)});
    }
    std::sort(placed.begin(), placed.end());
    placed.erase(std::unique(placed.begin(), placed.end()), placed.end());
    QModelIndexList sorted;
    for (const auto& one : placed) {
        sorted.append(one.second);
    }
    return sorted;
}

QList<const VKObject2*> ProjectFilterModel::objects(const QModelIndexList& rows) const {
    QList<const VKObject2*> objects;
    try {
        for (const QModelIndex& row : rows) {
            if (const VKObject2* const object = m_model->object(mapToSource(row))) {
                objects.append(object);
            }
        }
    } catch (const VKError& error) {
        VKError::dispatchError(error);
        return {};
    }
    return objects;
}

QMimeData* ProjectFilterModel::mimeData(const QModelIndexList& indexes) const {
    const QList<const VKObject2*> dragged = objects(topToBottom(indexes));
    return dragged.isEmpty() ? nullptr : VKObject2Decoder::encode(dragged);
}

bool ProjectFilterModel::filterAcceptsRow(int row, const QModelIndex& parent) const {
    const ProjectNode& shown = m_model->node(m_model->index(row, ProjectTreeModel::NameColumn, parent));
    if (shown.kind == Kind::Section) {
        return false; // there for what it holds
    }
    return matches(shown) || (shown.kind == Kind::Sample && matches(*shown.parent));
}

bool ProjectFilterModel::lessThan(const QModelIndex& left, const QModelIndex& right) const {
    const ProjectNode& one = m_model->node(left);
    const ProjectNode& other = m_model->node(right);
    if (one.kind == Kind::Section) {
        return one.key < other.key;
    }
    const int order = m_collator.compare(one.name, other.name);
    return order != 0 ? order < 0 : one.key < other.key;
}

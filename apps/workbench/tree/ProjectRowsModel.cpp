#include "ProjectRowsModel.h"

#include "TDatabase.h"
#include "VKError.h"

#include <QScopedValueRollback>
#include <QSet>

#include <algorithm>
#include <limits>

using Kind = ProjectNode::Kind;
using TechDB::ListedName;
using TechDB::ListedNames;

namespace {

ListedName nameOfSection(qint64 key) {
    ListedName name;
    name.place.key = key;
    return name;
}

/// What another window has renamed may come once more, until the list is read again.
void removePresent(ListedNames& names, const ProjectNode& list) {
    QSet<qint64> present;
    for (const auto& child : list.children) {
        present.insert(child->key);
    }
    const auto isPresent = [&present](const ListedName& name) { return present.contains(name.place.key); };
    names.erase(std::remove_if(names.begin(), names.end(), isPresent), names.end());
}

bool holdsNothing(const TechDB::TDatabase& project) {
    TechDB::NameRange one;
    one.limit = 1;
    return project.datasetNames(one).isEmpty() && project.analysisNames(one).isEmpty();
}

} // namespace

ProjectRowsModel::ProjectRowsModel(QObject* parent)
    : QAbstractItemModel(parent), m_noDatasets(Kind::Section, nameOfSection(ProjectNode::datasets)),
      m_noAnalyses(Kind::Section, nameOfSection(ProjectNode::analyses)) {}

ProjectRowsModel::~ProjectRowsModel() = default;

void ProjectRowsModel::setProject(TechDB::TDatabase* project) {
    m_project = project;
    // The keys of two projects mean nothing to each other.
    take({});
}

void ProjectRowsModel::refresh(const QModelIndexList& held) {
    take(read(heldBy(held), m_filter));
}

void ProjectRowsModel::setFilter(const QString& filter, const QModelIndexList& held) {
    const QString wanted = filter.trimmed();
    const Reading reading = read(heldBy(held), wanted);
    m_filter = wanted;
    take(reading);
}

bool ProjectRowsModel::matches(const ProjectNode& node) const {
    return ProjectPages::matches(node.name, m_filter);
}

ProjectRowsModel::Held ProjectRowsModel::heldBy(const QModelIndexList& rows) const {
    Held held;
    for (const QModelIndex& row : rows) {
        const ProjectNode& one = node(row);
        if (one.kind == Kind::Analysis) {
            held.analyses.append(one.key);
        } else if (one.kind == Kind::Dataset) {
            held.datasets.append(one.key);
        } else if (one.kind == Kind::Sample) {
            held.datasets.append(one.parent->key);
            held.samples[one.parent->key].append(one.key);
        }
    }
    return held;
}

ProjectRowsModel::Reading ProjectRowsModel::read(const Held& held, const QString& filter) const {
    Reading reading;
    if (m_project == nullptr) {
        return reading;
    }
    const ProjectPages pages(*m_project, filter);
    const auto again = [&](const ProjectNode& list, const QString& name, const Keys& keys) {
        return filter == m_filter ? pages.again(list, name, keys) : pages.first(list, name, keys);
    };
    const ProjectNode& datasets = section(ProjectNode::datasets);
    reading.datasets = again(datasets, {}, held.datasets);
    reading.analyses = again(section(ProjectNode::analyses), {}, held.analyses);
    reading.isEmpty = reading.datasets.names.isEmpty() && reading.analyses.names.isEmpty() &&
                      (filter.isEmpty() || holdsNothing(*m_project));
    QHash<qint64, QString> names;
    for (const ListedName& dataset : qAsConst(reading.datasets.names)) {
        names.insert(dataset.place.key, dataset.name);
    }
    for (const auto& dataset : datasets.children) {
        if (dataset->isRead && names.contains(dataset->key)) {
            reading.samples.insert(
                dataset->key, again(*dataset, names.value(dataset->key), held.samples.value(dataset->key)));
        }
    }
    return reading;
}

void ProjectRowsModel::take(const Reading& reading) {
    m_isEmpty = reading.isEmpty;
    takeSection(ProjectNode::datasets, reading.datasets, reading);
    takeSection(ProjectNode::analyses, reading.analyses, reading);
}

void ProjectRowsModel::takeSection(qint64 key, const Page& page, const Reading& reading) {
    const auto isIt = [key](const auto& node) { return node->key == key; };
    const auto found = std::find_if(m_root.children.begin(), m_root.children.end(), isIt);
    if (found == m_root.children.end()) {
        if (!page.names.isEmpty()) {
            addSection(key, page);
        }
        return;
    }
    if (!page.names.isEmpty()) {
        merge(**found, page, reading);
        return;
    }
    const QScopedValueRollback<bool> removing(m_isRemoving, true);
    beginRemoveRows({}, (*found)->row, (*found)->row);
    m_root.children.erase(found);
    m_root.number();
    endRemoveRows();
}

void ProjectRowsModel::addSection(qint64 key, const Page& page) {
    auto section = std::make_unique<ProjectNode>(Kind::Section, nameOfSection(key));
    section->parent = &m_root;
    section->insert(0, page.names, 0, page.names.size());
    section->isRead = true;
    section->isWhole = page.isLast;
    const int row = key == ProjectNode::datasets ? 0 : static_cast<int>(m_root.children.size());
    beginInsertRows({}, row, row);
    m_root.children.insert(m_root.children.begin() + row, std::move(section));
    m_root.number();
    endInsertRows();
}

// NOLINTNEXTLINE(misc-no-recursion) as deep as the tree: three levels
void ProjectRowsModel::merge(ProjectNode& list, const Page& page, const Reading& reading) {
    QHash<qint64, int> places;
    for (int i = 0; i < page.names.size(); ++i) {
        places.insert(page.names.at(i).place.key, i);
    }
    arrange(list, places);
    removeMissing(list, places);
    list.isRead = true;
    list.isWhole = page.isLast;
    // What is left is in the new list too, and in its order.
    for (int i = 0; i < page.names.size(); ++i) {
        const auto row = static_cast<std::size_t>(i);
        int end = i;
        while (end < page.names.size() &&
               (row == list.children.size() || page.names.at(end).place.key != list.children[row]->key)) {
            ++end;
        }
        if (end > i) {
            insert(list, row, page.names, i, end);
            i = end - 1;
            continue;
        }
        ProjectNode& present = *list.children[row];
        if (present.update(page.names.at(i))) {
            emit dataChanged(indexOf(present), indexOf(present, columnCount() - 1));
        }
        const auto samples = reading.samples.constFind(present.key);
        if (present.kind == Kind::Dataset && samples != reading.samples.constEnd()) {
            merge(present, *samples, reading);
        }
    }
}

void ProjectRowsModel::arrange(ProjectNode& list, const QHash<qint64, int>& places) {
    // What is gone goes behind, so that it is taken away at once, wherever it stood.
    const auto comesBefore = [&places](const auto& left, const auto& right) {
        const int behind = std::numeric_limits<int>::max();
        return places.value(left->key, behind) < places.value(right->key, behind);
    };
    if (std::is_sorted(list.children.begin(), list.children.end(), comesBefore)) {
        return;
    }
    const QList<QPersistentModelIndex> parents{indexOf(list)};
    emit layoutAboutToBeChanged(parents);
    std::stable_sort(list.children.begin(), list.children.end(), comesBefore);
    list.number();
    const QModelIndexList former = persistentIndexList();
    QModelIndexList present;
    for (const QModelIndex& index : former) {
        present.append(indexOf(node(index), index.column()));
    }
    changePersistentIndexList(former, present);
    emit layoutChanged(parents);
}

void ProjectRowsModel::removeMissing(ProjectNode& list, const QHash<qint64, int>& places) {
    std::size_t kept = list.children.size();
    while (kept > 0 && !places.contains(list.children[kept - 1]->key)) {
        --kept;
    }
    if (kept < list.children.size()) {
        const QScopedValueRollback<bool> removing(m_isRemoving, true);
        beginRemoveRows(indexOf(list), static_cast<int>(kept), static_cast<int>(list.children.size()) - 1);
        list.truncate(kept);
        endRemoveRows();
    }
}

void ProjectRowsModel::insert(ProjectNode& list, std::size_t place, const ListedNames& names, int first,
                              int end) {
    const int row = static_cast<int>(place);
    beginInsertRows(indexOf(list), row, row + end - first - 1);
    list.insert(place, names, first, end);
    endInsertRows();
}

QModelIndexList ProjectRowsModel::unfinishedLists() const {
    QModelIndexList lists;
    for (const auto& section : m_root.children) {
        if (!section->isWhole) {
            lists.append(indexOf(*section));
        }
        for (const auto& dataset : section->children) {
            if (dataset->isRead && !dataset->isWhole) {
                lists.append(indexOf(*dataset));
            }
        }
    }
    return lists;
}

void ProjectRowsModel::readOn(const QModelIndex& list) {
    append(list, &ProjectPages::next);
}

void ProjectRowsModel::readRest(const QModelIndex& list) {
    append(list, &ProjectPages::rest);
}

void ProjectRowsModel::append(const QModelIndex& list,
                              Page (ProjectPages::*reader)(const ProjectNode&) const) {
    if (m_project == nullptr || m_isRemoving || !node(list).isList() || node(list).isWhole) {
        return;
    }
    ProjectNode& longer = nodeOf(list);
    Page page;
    try {
        page = (ProjectPages(*m_project, m_filter).*reader)(longer);
    } catch (const VKError& error) {
        VKError::dispatchError(error); // once: the list counts as whole then
    }
    removePresent(page.names, longer);
    longer.isRead = true;
    longer.isWhole = page.isLast;
    if (!page.names.isEmpty()) {
        insert(longer, longer.children.size(), page.names, 0, page.names.size());
    }
}

const ProjectNode& ProjectRowsModel::node(const QModelIndex& index) const {
    return index.isValid() ? nodeOf(index) : m_root;
}

ProjectNode& ProjectRowsModel::nodeOf(const QModelIndex& index) {
    return *static_cast<ProjectNode*>(index.internalPointer());
}

const ProjectNode& ProjectRowsModel::section(qint64 key) const {
    for (const auto& section : m_root.children) {
        if (section->key == key) {
            return *section;
        }
    }
    return key == ProjectNode::datasets ? m_noDatasets : m_noAnalyses;
}

QModelIndex ProjectRowsModel::indexOf(const ProjectNode& node, int column) const {
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-const-cast) an index takes no pointer to const
    return createIndex(node.row, column, const_cast<ProjectNode*>(&node));
}

QModelIndex ProjectRowsModel::index(int row, int column, const QModelIndex& parent) const {
    if (!hasIndex(row, column, parent)) {
        return {};
    }
    return createIndex(row, column, node(parent).children.at(static_cast<std::size_t>(row)).get());
}

QModelIndex ProjectRowsModel::parent(const QModelIndex& index) const {
    const ProjectNode* const above = node(index).parent;
    return above != nullptr && above != &m_root ? indexOf(*above) : QModelIndex();
}

int ProjectRowsModel::rowCount(const QModelIndex& parent) const {
    return parent.column() > 0 ? 0 : static_cast<int>(node(parent).children.size());
}

bool ProjectRowsModel::hasChildren(const QModelIndex& parent) const {
    return parent.column() <= 0 && node(parent).hasRows();
}

#include "ProjectPages.h"

#include "NameText.h"
#include "ProjectNode.h"
#include "TDatabase.h"

#include <QSet>

#include <algorithm>

using Kind = ProjectNode::Kind;
using TechDB::ListedName;
using TechDB::ListedNames;
using TechDB::NamePlace;
using TechDB::NameRange;

namespace {

/// From here on, reading a list to its end is quicker than looking for each of its rows.
constexpr int manyHeld = 10'000;

NamePlace end(const ListedNames& names) {
    return names.isEmpty() ? NamePlace() : names.last().place;
}

NameRange behind(const ProjectNode& list) {
    NameRange range;
    range.after = list.children.empty() ? NamePlace() : list.children.back()->place();
    return range;
}

QVector<qint64> notAmong(const ListedNames& names, QVector<qint64> keys) {
    QSet<qint64> present;
    for (const ListedName& name : names) {
        present.insert(name.place.key);
    }
    const auto isPresent = [&present](qint64 key) { return present.contains(key); };
    keys.erase(std::remove_if(keys.begin(), keys.end(), isPresent), keys.end());
    return keys;
}

/// An object that was renamed between two readings may be in both.
void removeRepeated(ListedNames& names) {
    QSet<qint64> seen;
    const auto isRepeated = [&seen](const ListedName& name) {
        const int before = seen.size();
        seen.insert(name.place.key);
        return seen.size() == before;
    };
    names.erase(std::remove_if(names.begin(), names.end(), isRepeated), names.end());
}

} // namespace

bool ProjectPages::matches(const QString& name, const QString& filter) {
    return NameText::folded(name).contains(NameText::folded(filter));
}

ProjectPages::Page ProjectPages::next(const ProjectNode& list) const {
    NameRange range = behind(list);
    range.limit = pageSize;
    const ListedNames names = read(list, list.name, range);
    return {names, names.size() < pageSize};
}

ProjectPages::Page ProjectPages::rest(const ProjectNode& list) const {
    return {read(list, list.name, behind(list)), true};
}

ProjectPages::Page ProjectPages::first(const ProjectNode& list, const QString& name,
                                       const QVector<qint64>& held) const {
    NameRange range;
    range.limit = pageSize;
    const ListedNames names = read(list, name, range);
    return withHeld(list, name, held, {names, names.size() < pageSize});
}

ProjectPages::Page ProjectPages::again(const ProjectNode& list, const QString& name,
                                       const QVector<qint64>& held) const {
    if (list.children.empty()) {
        return first(list, name, held);
    }
    NameRange range;
    range.upTo = behind(list).after;
    Page page{read(list, name, range), false};
    if (list.isWhole || page.names.size() < pageSize) {
        NameRange more;
        more.after = *range.upTo;
        more.limit = pageSize;
        const ListedNames added = read(list, name, more);
        page = {page.names + added, added.size() < pageSize};
    }
    return withHeld(list, name, held, page);
}

ProjectPages::Page ProjectPages::withHeld(const ProjectNode& list, const QString& name,
                                          const QVector<qint64>& held, Page page) const {
    const QVector<qint64> missing = page.isLast ? QVector<qint64>() : notAmong(page.names, held);
    if (missing.size() > manyHeld) {
        NameRange rest;
        rest.after = end(page.names);
        page = {page.names + read(list, name, rest), true};
    }
    NamePlace furthest;
    for (int i = 0; i < missing.size() && !page.isLast; ++i) {
        NameRange one;
        one.only = missing.at(i);
        furthest = std::max(furthest, end(read(list, name, one)));
    }
    if (end(page.names) < furthest) {
        NameRange further;
        further.after = end(page.names);
        further.upTo = furthest;
        page.names += read(list, name, further);
    }
    removeRepeated(page.names);
    return page;
}

ListedNames ProjectPages::read(const ProjectNode& list, const QString& name, NameRange range) const {
    const bool isMatchingDataset = list.kind == Kind::Dataset && matches(name, m_filter);
    range.part = isMatchingDataset ? QString() : m_filter;
    if (list.kind == Kind::Dataset) {
        return m_project.sampleNames(list.key, range);
    }
    return list.key == ProjectNode::datasets ? m_project.datasetNames(range) : m_project.analysisNames(range);
}

#include "ProjectNode.h"

#include <iterator>
#include <utility>

ProjectNode::ProjectNode(Kind nodeKind, const TechDB::ListedName& listed)
    : kind(nodeKind), key(listed.place.key) {
    update(listed);
}

ProjectNode::Kind ProjectNode::kindBelow() const {
    if (kind == Kind::Dataset) {
        return Kind::Sample;
    }
    return key == datasets ? Kind::Dataset : Kind::Analysis;
}

bool ProjectNode::update(const TechDB::ListedName& listed) {
    const bool same = name == listed.name && created == listed.created && count == listed.count;
    name = listed.name;
    sortKey = listed.place.sortKey;
    created = listed.created;
    count = listed.count;
    return !same;
}

void ProjectNode::insert(std::size_t place, const TechDB::ListedNames& names, int first, int end) {
    Children added;
    added.reserve(static_cast<std::size_t>(end - first));
    for (int i = first; i < end; ++i) {
        added.push_back(std::make_unique<ProjectNode>(kindBelow(), names.at(i)));
        added.back()->parent = this;
    }
    children.insert(children.begin() + static_cast<std::ptrdiff_t>(place),
                    std::make_move_iterator(added.begin()), std::make_move_iterator(added.end()));
    number(place);
}

void ProjectNode::truncate(std::size_t place) {
    children.erase(children.begin() + static_cast<std::ptrdiff_t>(place), children.end());
}

void ProjectNode::number(std::size_t from) {
    for (std::size_t i = from; i < children.size(); ++i) {
        children[i]->row = static_cast<int>(i);
    }
}

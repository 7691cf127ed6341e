#include "ProjectNode.h"

#include "TDatabase.h"

#include <algorithm>

namespace {

using Kind = ProjectNode::Kind;

ProjectNode& append(ProjectNode& parent, Kind kind, qint64 key, const QString& name = {}) {
    auto node = std::make_unique<ProjectNode>();
    node->kind = kind;
    node->key = key;
    node->name = name;
    node->parent = &parent;
    parent.children.push_back(std::move(node));
    return *parent.children.back();
}

void sortByKey(ProjectNode& node) {
    std::sort(node.children.begin(), node.children.end(),
              [](const auto& left, const auto& right) { return left->key < right->key; });
}

void addDatasets(ProjectNode& section, const TechDB::TDatabase& project) {
    for (const TechDB::DatasetInfo& info : project.datasets()) {
        ProjectNode& dataset = append(section, Kind::Dataset, info.key, info.name);
        dataset.created = info.created;
        if (info.sampleCount == 0) {
            continue;
        }
        for (const TechDB::SampleInfo& sample : project.samples(info.key)) {
            append(dataset, Kind::Sample, sample.key, sample.name);
        }
        sortByKey(dataset);
    }
    sortByKey(section);
}

void addAnalyses(ProjectNode& section, const TechDB::TDatabase& project) {
    for (const TechDB::AnalysisInfo& info : project.analyses()) {
        ProjectNode& analysis = append(section, Kind::Analysis, info.key, info.name);
        analysis.created = info.created;
        analysis.pointCount = info.pointCount;
    }
    sortByKey(section);
}

} // namespace

ProjectNode::Children ProjectNode::sectionsOf(const TechDB::TDatabase* project) {
    ProjectNode root;
    ProjectNode& datasetSection = append(root, Kind::Section, datasets);
    ProjectNode& analysisSection = append(root, Kind::Section, analyses);
    if (project != nullptr) {
        addDatasets(datasetSection, *project);
        addAnalyses(analysisSection, *project);
    }
    return std::move(root.children);
}

int ProjectNode::row() const {
    const auto place = std::lower_bound(parent->children.begin(), parent->children.end(), key,
                                        [](const auto& node, qint64 wanted) { return node->key < wanted; });
    return static_cast<int>(place - parent->children.begin());
}

bool ProjectNode::looksLike(const ProjectNode& other) const {
    return name == other.name && created == other.created && pointCount == other.pointCount;
}

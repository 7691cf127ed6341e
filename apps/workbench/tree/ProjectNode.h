#pragma once

#include <QDateTime>
#include <QString>

#include <memory>
#include <vector>

namespace TechDB {
class TDatabase;
} // namespace TechDB

/// One row of the project tree with all below it. The root holds two sections, those the datasets and the
/// analyses, a dataset its samples. The children of a node stand in the order of their keys, by which they
/// are found again.
struct ProjectNode {
    enum class Kind { Root, Section, Dataset, Sample, Analysis };
    using Children = std::vector<std::unique_ptr<ProjectNode>>;

    /// Keys of the sections.
    static constexpr qint64 datasets = 0;
    static constexpr qint64 analyses = 1;

    /// The two sections, filled with what a project holds at this moment; names, dates and counts, no
    /// curve. Empty sections for null. Throws VKError if the project can't be read.
    static Children sectionsOf(const TechDB::TDatabase* project);

    Kind kind = Kind::Root;
    qint64 key = 0;
    QString name;
    /// Of datasets and analyses, in UTC; may be invalid.
    QDateTime created;
    /// Of analyses.
    int pointCount = 0;
    ProjectNode* parent = nullptr;
    Children children;

    /// Place among the children of its parent.
    int row() const;
    /// Whether it stands for an object of the project.
    bool isObject() const { return kind == Kind::Dataset || kind == Kind::Analysis; }
    bool looksLike(const ProjectNode& other) const;
};

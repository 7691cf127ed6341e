#pragma once

#include "NameRange.h"

#include <QDateTime>
#include <QString>

#include <memory>
#include <vector>

/// One row of the project tree with all that was read below it. The root holds the sections that hold
/// anything, a section its datasets or analyses, a dataset its samples. Of a list, which is a section or a
/// dataset, the first rows are read, or none, or all.
struct ProjectNode {
    enum class Kind { Root, Section, Dataset, Sample, Analysis };
    using Children = std::vector<std::unique_ptr<ProjectNode>>;

    /// Keys of the sections.
    static constexpr qint64 datasets = 0;
    static constexpr qint64 analyses = 1;

    ProjectNode() = default;
    ProjectNode(Kind nodeKind, const TechDB::ListedName& listed);

    Kind kind = Kind::Root;
    qint64 key = 0;
    QString name;
    QString sortKey;
    /// Of datasets and analyses, in UTC; may be invalid.
    QDateTime created;
    /// The points of an analysis; 1 for a dataset that holds samples.
    int count = 0;

    ProjectNode* parent = nullptr;
    /// Place among the children of its parent.
    int row = 0;
    Children children;
    /// Whether rows of the list were read, and whether there are no more.
    bool isRead = false;
    bool isWhole = false;

    TechDB::NamePlace place() const { return {sortKey, key}; }
    /// What a list holds.
    Kind kindBelow() const;
    /// Whether it stands for an object of the project.
    bool isObject() const { return kind == Kind::Dataset || kind == Kind::Analysis; }
    bool isList() const { return kind == Kind::Section || kind == Kind::Dataset; }
    /// Whether there are rows below it, read or not.
    bool hasRows() const { return isList() && !isRead ? count > 0 : !children.empty(); }

    /// Takes over what can change; false if nothing did.
    bool update(const TechDB::ListedName& listed);
    /// Puts rows for names `first` to before `end` before the child of that place.
    void insert(std::size_t place, const TechDB::ListedNames& names, int first, int end);
    /// Takes the children from a place on away.
    void truncate(std::size_t place);
    /// Gives the children from a place on their row numbers.
    void number(std::size_t from = 0);
};

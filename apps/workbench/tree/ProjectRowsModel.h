#pragma once

#include "ProjectNode.h"
#include "ProjectPages.h"

#include <QAbstractItemModel>
#include <QHash>

namespace TechDB {
class TDatabase;
} // namespace TechDB

/// The rows of a project tree: sections, datasets with samples, analyses, each list in the natural order of
/// its names and only what the filter leaves (`ProjectPages`). A section without anything to show isn't
/// there.
///
/// A list (a section or a dataset) is read page by page: the first page of a section at once, that of a
/// dataset when `readOn` asks for it. Not by `canFetchMore`: a view would fetch while it lays rows out, and a
/// page more at each layout.
class ProjectRowsModel : public QAbstractItemModel {
    Q_OBJECT

public:
    explicit ProjectRowsModel(QObject* parent = nullptr);
    ~ProjectRowsModel() override;

    /// Null for none. It is read by `refresh`.
    void setProject(TechDB::TDatabase* project);
    /// Takes over what the project holds now, so that what stays keeps its place in the views, and the rows
    /// `held` wherever they have gone. Throws VKError if the project can't be read; then all stays.
    void refresh(const QModelIndexList& held = {});
    /// The same for another filter.
    void setFilter(const QString& filter, const QModelIndexList& held = {});
    const QString& filter() const { return m_filter; }
    /// Whether the name of a node has the filter in it.
    bool matches(const ProjectNode& node) const;
    /// Whether there is no dataset and no analysis, whatever the filter.
    bool isEmpty() const { return m_isEmpty; }

    /// The lists of which rows were read, but not all.
    QModelIndexList unfinishedLists() const;
    /// Reads the next page of a list, or all that is left. A project that can't be read is reported.
    void readOn(const QModelIndex& list);
    void readRest(const QModelIndex& list);

    /// The index must be one of this model.
    const ProjectNode& node(const QModelIndex& index) const;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    bool hasChildren(const QModelIndex& parent = {}) const override;

protected:
    TechDB::TDatabase* project() const { return m_project; }

private:
    using Page = ProjectPages::Page;
    using Keys = QVector<qint64>;

    /// The keys of rows that are to stay in sight, list by list.
    struct Held {
        Keys datasets;
        Keys analyses;
        QHash<qint64, Keys> samples;
    };
    /// What was read anew, before anything is changed.
    struct Reading {
        Page datasets;
        Page analyses;
        QHash<qint64, Page> samples;
        bool isEmpty = true;
    };

    QModelIndex indexOf(const ProjectNode& node, int column = 0) const;
    static ProjectNode& nodeOf(const QModelIndex& index);
    const ProjectNode& section(qint64 key) const;
    Held heldBy(const QModelIndexList& rows) const;
    Reading read(const Held& held, const QString& filter) const;
    void take(const Reading& reading);
    void takeSection(qint64 key, const Page& page, const Reading& reading);
    void addSection(qint64 key, const Page& page);
    void merge(ProjectNode& list, const Page& page, const Reading& reading);
    void removeMissing(ProjectNode& list, const QHash<qint64, int>& places);
    void arrange(ProjectNode& list, const QHash<qint64, int>& places);
    void insert(ProjectNode& list, std::size_t place, const TechDB::ListedNames& names, int first, int end);
    void append(const QModelIndex& list, Page (ProjectPages::*reader)(const ProjectNode&) const);

    TechDB::TDatabase* m_project = nullptr;
    QString m_filter;
    ProjectNode m_root;
    /// Stand in for sections without rows.
    ProjectNode m_noDatasets;
    ProjectNode m_noAnalyses;
    bool m_isEmpty = true;
    /// While rows are about to go: those who hear of it must not read on.
    bool m_isRemoving = false;
};

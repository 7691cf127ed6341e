#pragma once

#include <QCollator>
#include <QList>
#include <QSortFilterProxyModel>

class ProjectTreeModel;
class VKObject2;
struct ProjectNode;

/// The project tree as it is shown: each section in the natural order of the names, in which numbers count
/// as numbers, and only what the filter leaves. The filter is part of a name, in either case; a dataset that
/// has it is shown with all its samples, a sample that has it with its dataset. A section without anything
/// to show isn't shown.
class ProjectFilterModel : public QSortFilterProxyModel {
    Q_OBJECT

public:
    /// The model is not owned.
    explicit ProjectFilterModel(ProjectTreeModel* model, QObject* parent = nullptr);
    ~ProjectFilterModel() override;

    void setFilter(const QString& filter);
    const QString& filter() const { return m_filter; }
    bool matches(const ProjectNode& node) const;

    /// Sorts anew by the rules of the present locale.
    void followLocale();

    const ProjectNode& node(const QModelIndex& index) const;

    /// One index of each row, in the order from top to bottom.
    static QModelIndexList topToBottom(const QModelIndexList& rows);
    /// What the rows stand for, in their order. A project that can't be read is reported and gives none.
    QList<const VKObject2*> objects(const QModelIndexList& rows) const;

    /// The objects from top to bottom, as VKObject2Decoder has it; null if there is none.
    QMimeData* mimeData(const QModelIndexList& indexes) const override;

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

private:
    ProjectTreeModel* m_model;
    QCollator m_collator;
    QString m_filter;
};

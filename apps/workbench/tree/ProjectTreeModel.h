#pragma once

#include "ProjectNode.h"

#include <QAbstractItemModel>
#include <QIcon>

class VKObject2;

/// What a project holds as a tree: sections, datasets with samples, analyses, with name, date and number of
/// points; the tooltip of a date tells the time too. It keeps names, dates and counts, never a curve. Names
/// are plain text on one line: a line break or another control character that another program put into one is
/// shown as a blank.
///
/// Setting the text of a dataset or an analysis renames it in the project; a refused name is told by
/// VKError::dispatchError and changes nothing.
class ProjectTreeModel : public QAbstractItemModel {
    Q_OBJECT

public:
    enum Column { NameColumn, DateColumn, PointsColumn, ColumnCount };

    explicit ProjectTreeModel(QObject* parent = nullptr);
    ~ProjectTreeModel() override;

    /// Null for none. It is read by `refresh`.
    void setProject(TechDB::TDatabase* project);
    /// Takes over what the project holds now, row by row, so that what stays keeps its place in the views.
    /// Throws VKError if the project can't be read; then all stays.
    void refresh();

    /// Whether there is any dataset or analysis.
    bool isEmpty() const;

    /// The index must be one of this model.
    const ProjectNode& node(const QModelIndex& index) const;
    /// Null for a section, a sample, and what is no longer in the project. Throws VKError.
    const VKObject2* object(const QModelIndex& index) const;
    /// The name as it is shown; for a section, in the user's language.
    static QString shownName(const ProjectNode& node);

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    Qt::DropActions supportedDragActions() const override { return Qt::CopyAction; }
    QStringList mimeTypes() const override;

private:
    QModelIndex indexOf(const ProjectNode& node, int column = NameColumn) const;
    QString text(const ProjectNode& node, int column) const;
    static QString moment(const ProjectNode& node);
    QVariant decoration(const ProjectNode& node) const;
    bool rename(const ProjectNode& node, const QString& name);

    void merge(ProjectNode& present, ProjectNode::Children fresh);
    void removeMissing(ProjectNode& present, const ProjectNode::Children& fresh);
    void insert(ProjectNode& present, ProjectNode::Children& fresh, std::size_t first, std::size_t end);
    void update(ProjectNode& present, ProjectNode& fresh);

    TechDB::TDatabase* m_project = nullptr;
    ProjectNode m_root;
    QIcon m_datasetIcon;
    QIcon m_sampleIcon;
    QIcon m_analysisIcon;
};

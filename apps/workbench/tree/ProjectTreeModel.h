#pragma once

#include "ProjectRowsModel.h"

#include <QIcon>

class VKObject2;

/// What a project holds as a tree, with name, date and number of points in each row; the tooltip of a date
/// tells the time too. Names are plain text on one line: a line break or another control character that
/// another program put into one is shown as a blank.
///
/// Setting the text of a dataset or an analysis renames it in the project; a refused name is told by
/// VKError::dispatchError and changes nothing.
class ProjectTreeModel : public ProjectRowsModel {
    Q_OBJECT

public:
    enum Column { NameColumn, DateColumn, PointsColumn, ColumnCount };

    explicit ProjectTreeModel(QObject* parent = nullptr);
    ~ProjectTreeModel() override;

    /// The name as it is shown; for a section, in the user's language.
    static QString shownName(const ProjectNode& node);
    /// Shows names, dates and counts in the present language.
    void retranslate();

    /// One index of each row, in the order from top to bottom.
    static QModelIndexList topToBottom(const QModelIndexList& rows);
    /// What the rows stand for, in their order, without sections, samples, and what is no longer in the
    /// project. A project that can't be read is reported and gives none.
    QList<const VKObject2*> objects(const QModelIndexList& rows) const;

    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    Qt::DropActions supportedDragActions() const override { return Qt::CopyAction; }
    QStringList mimeTypes() const override;
    /// The objects from top to bottom, as VKObject2Decoder has it; null if there is none.
    QMimeData* mimeData(const QModelIndexList& indexes) const override;

private:
    static QString text(const ProjectNode& node, int column);
    static QString moment(const ProjectNode& node);
    QVariant decoration(const ProjectNode& node) const;
    bool rename(const QModelIndex& index, const QString& name);

    QIcon m_datasetIcon;
    QIcon m_sampleIcon;
    QIcon m_analysisIcon;
};

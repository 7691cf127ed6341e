#pragma once

#include <QObject>
#include <QPair>
#include <QSet>

class ProjectRowsModel;
class QModelIndex;
class QTreeView;
struct ProjectNode;

/// Opens and closes the branches of the project tree: as the user left them, sections open and datasets
/// closed at first. While a filter is set, all that holds a hit is open, and what the user does then isn't
/// remembered.
class ExpansionKeeper : public QObject {
    Q_OBJECT

public:
    /// Neither is owned; the view shows the model already, so that it hears of new rows first.
    ExpansionKeeper(QTreeView* view, const ProjectRowsModel* model);
    ~ExpansionKeeper() override;

    void forget() { m_toggled.clear(); }
    /// Brings the view to what is wanted, after the filter has changed.
    void apply();

private:
    using NodeId = QPair<int, qint64>;

    static NodeId idOf(const ProjectNode& node);
    bool isWanted(const ProjectNode& node) const;
    void applyBelow(const QModelIndex& parent, int first, int last);
    void remember(const QModelIndex& index, bool expanded);

    QTreeView* m_view;
    const ProjectRowsModel* m_model;
    /// What the user left otherwise than it was at first.
    QSet<NodeId> m_toggled;
    bool m_applying = false;
};

#include "ExpansionKeeper.h"

#include "ProjectRowsModel.h"

#include <QScopedValueRollback>
#include <QTreeView>

using Kind = ProjectNode::Kind;

ExpansionKeeper::ExpansionKeeper(QTreeView* view, const ProjectRowsModel* model)
    : QObject(view), m_view(view), m_model(model) {
    connect(view, &QTreeView::expanded, this, [this](const QModelIndex& index) { remember(index, true); });
    connect(view, &QTreeView::collapsed, this, [this](const QModelIndex& index) { remember(index, false); });
    connect(model, &QAbstractItemModel::rowsInserted, this, &ExpansionKeeper::applyBelow);
}

ExpansionKeeper::~ExpansionKeeper() = default;

void ExpansionKeeper::apply() {
    applyBelow({}, 0, m_model->rowCount() - 1);
}

ExpansionKeeper::NodeId ExpansionKeeper::idOf(const ProjectNode& node) {
    return {static_cast<int>(node.kind), node.key};
}

bool ExpansionKeeper::isWanted(const ProjectNode& node) const {
    const bool isSection = node.kind == Kind::Section;
    if (!m_model->filter().isEmpty()) {
        return isSection || !m_model->matches(node); // shown for a sample of its
    }
    return isSection != m_toggled.contains(idOf(node));
}

// NOLINTNEXTLINE(misc-no-recursion) as deep as the tree: three levels
void ExpansionKeeper::applyBelow(const QModelIndex& parent, int first, int last) {
    const QScopedValueRollback<bool> applying(m_applying, true);
    for (int row = first; row <= last; ++row) {
        const QModelIndex index = m_model->index(row, 0, parent);
        const ProjectNode& node = m_model->node(index);
        if (node.kind != Kind::Section && node.kind != Kind::Dataset) {
            return; // its siblings are of its kind
        }
        m_view->setExpanded(index, isWanted(node));
        applyBelow(index, 0, m_model->rowCount(index) - 1);
    }
}

void ExpansionKeeper::remember(const QModelIndex& index, bool expanded) {
    if (m_applying || !m_model->filter().isEmpty()) {
        return;
    }
    const ProjectNode& node = m_model->node(index);
    if (expanded == (node.kind == Kind::Section)) {
        m_toggled.remove(idOf(node));
    } else {
        m_toggled.insert(idOf(node));
    }
}

#include "ProjectTreeModel.h"

#include "TDatabase.h"
#include "TLineIcon.h"
#include "VKError.h"
#include "VKObject2Analysis.h"
#include "VKObject2Decoder.h"
#include "VKObject2Well.h"

#include <QFont>
#include <QLocale>

#include <algorithm>
#include <iterator>

using Kind = ProjectNode::Kind;

namespace {

bool breaksTheLine(QChar letter) {
    const QChar::Category category = letter.category();
    return category == QChar::Other_Control || category == QChar::Separator_Line ||
           category == QChar::Separator_Paragraph;
}

QString onOneLine(QString name) {
    std::replace_if(name.begin(), name.end(), breaksTheLine, QLatin1Char(' '));
    return name;
}

bool holds(const ProjectNode::Children& nodes, qint64 key) {
    const auto place = std::lower_bound(nodes.begin(), nodes.end(), key,
                                        [](const auto& node, qint64 wanted) { return node->key < wanted; });
    return place != nodes.end() && (*place)->key == key;
}

} // namespace

ProjectTreeModel::ProjectTreeModel(QObject* parent)
    : QAbstractItemModel(parent), m_datasetIcon(TLineIcon::icon(QStringLiteral("dataset"))),
      m_sampleIcon(TLineIcon::icon(QStringLiteral("sample"))),
      m_analysisIcon(TLineIcon::icon(QStringLiteral("analysis"))) {
    m_root.children = ProjectNode::sectionsOf(nullptr);
    for (const auto& section : m_root.children) {
        section->parent = &m_root;
    }
}

ProjectTreeModel::~ProjectTreeModel() = default;

void ProjectTreeModel::setProject(TechDB::TDatabase* project) {
    m_project = project;
    // The keys of two projects mean nothing to each other.
    merge(m_root, ProjectNode::sectionsOf(nullptr));
}

void ProjectTreeModel::refresh() {
    merge(m_root, ProjectNode::sectionsOf(m_project));
}

bool ProjectTreeModel::isEmpty() const {
    return std::all_of(m_root.children.begin(), m_root.children.end(),
                       [](const auto& section) { return section->children.empty(); });
}

const ProjectNode& ProjectTreeModel::node(const QModelIndex& index) const {
    return index.isValid() ? *static_cast<const ProjectNode*>(index.internalPointer()) : m_root;
}

const VKObject2* ProjectTreeModel::object(const QModelIndex& index) const {
    const ProjectNode& wanted = node(index);
    if (m_project == nullptr || !wanted.isObject()) {
        return nullptr;
    }
    if (wanted.kind == Kind::Dataset) {
        return m_project->wellByKey(wanted.key);
    }
    return m_project->analysisByKey(wanted.key);
}

QString ProjectTreeModel::shownName(const ProjectNode& node) {
    if (node.kind != Kind::Section) {
        return onOneLine(node.name);
    }
    return node.key == ProjectNode::datasets ? tr("Datasets", "Jeux de données") : tr("Analyses", "Analyses");
}

QModelIndex ProjectTreeModel::indexOf(const ProjectNode& node, int column) const {
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-const-cast) an index takes no pointer to const
    return createIndex(node.row(), column, const_cast<ProjectNode*>(&node));
}

QModelIndex ProjectTreeModel::index(int row, int column, const QModelIndex& parent) const {
    if (!hasIndex(row, column, parent)) {
        return {};
    }
    return createIndex(row, column, node(parent).children.at(static_cast<std::size_t>(row)).get());
}

QModelIndex ProjectTreeModel::parent(const QModelIndex& index) const {
    const ProjectNode* const above = node(index).parent;
    return above != nullptr && above != &m_root ? indexOf(*above) : QModelIndex();
}

int ProjectTreeModel::rowCount(const QModelIndex& parent) const {
    return parent.column() > 0 ? 0 : static_cast<int>(node(parent).children.size());
}

int ProjectTreeModel::columnCount(const QModelIndex&) const {
    return ColumnCount;
}

QVariant ProjectTreeModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const ProjectNode& shown = node(index);
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return text(shown, index.column());
    case Qt::DecorationRole:
        return index.column() == NameColumn ? decoration(shown) : QVariant();
    case Qt::TextAlignmentRole:
        return index.column() == PointsColumn ? int(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
    case Qt::ToolTipRole:
        return index.column() == DateColumn ? moment(shown) : QString();
    case Qt::FontRole:
        if (shown.kind == Kind::Section) {
            QFont font;
            font.setWeight(QFont::DemiBold);
            return font;
        }
        return {};
    default:
        return {};
    }
}

QString ProjectTreeModel::text(const ProjectNode& node, int column) const {
    if (column == NameColumn) {
        return shownName(node);
    }
    if (column == DateColumn) {
        return node.created.isValid()
                   ? QLocale().toString(node.created.toLocalTime().date(), QLocale::ShortFormat)
                   : QString();
    }
    return node.kind == Kind::Analysis ? QLocale().toString(node.pointCount) : QString();
}

QString ProjectTreeModel::moment(const ProjectNode& node) {
    return node.created.isValid() ? QLocale().toString(node.created.toLocalTime(), QLocale::LongFormat)
                                  : QString();
}

QVariant ProjectTreeModel::decoration(const ProjectNode& node) const {
    switch (node.kind) {
    case Kind::Dataset:
        return m_datasetIcon;
    case Kind::Sample:
        return m_sampleIcon;
    case Kind::Analysis:
        return m_analysisIcon;
    case Kind::Root:
    case Kind::Section:
        break;
    }
    return {};
}

QVariant ProjectTreeModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= ColumnCount) {
        return {};
    }
    if (role == Qt::TextAlignmentRole) {
        return int((section == PointsColumn ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    switch (section) {
    case NameColumn:
        return tr("Name", "Nom");
    case DateColumn:
        return tr("Date", "Date");
    default:
        return tr("Points", "Points");
    }
}

Qt::ItemFlags ProjectTreeModel::flags(const QModelIndex& index) const {
    if (!index.isValid()) {
        return Qt::NoItemFlags;
    }
    const ProjectNode& shown = node(index);
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    if (shown.isObject()) {
        flags |= Qt::ItemIsDragEnabled;
        flags.setFlag(Qt::ItemIsEditable, index.column() == NameColumn);
    }
    flags.setFlag(Qt::ItemNeverHasChildren, shown.kind == Kind::Analysis || shown.kind == Kind::Sample);
    return flags;
}

QStringList ProjectTreeModel::mimeTypes() const {
    return {QLatin1String(VKObject2Decoder::mimeType())};
}

bool ProjectTreeModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::EditRole || !(flags(index) & Qt::ItemIsEditable)) {
        return false;
    }
    const ProjectNode& renamed = node(index);
    const QString name = value.toString().trimmed();
    return name == shownName(renamed) || rename(renamed, name);
}

bool ProjectTreeModel::rename(const ProjectNode& node, const QString& name) {
    try {
        if (node.kind == Kind::Dataset) {
            m_project->renameWell(node.key, name);
        } else {
            m_project->renameAnalysis(node.key, name);
        }
        refresh();
        return true;
    } catch (const VKError& error) {
        VKError::dispatchError(error);
        return false;
    }
}

// NOLINTNEXTLINE(misc-no-recursion) as deep as the tree: three levels
void ProjectTreeModel::merge(ProjectNode& present, ProjectNode::Children fresh) {
    removeMissing(present, fresh);
    // What is left is in the fresh list too, and both are in the order of their keys.
    for (std::size_t row = 0; row < fresh.size(); ++row) {
        std::size_t end = row;
        while (end < fresh.size() &&
               (row == present.children.size() || fresh[end]->key < present.children[row]->key)) {
            ++end;
        }
        if (end == row) {
            update(*present.children[row], *fresh[row]);
        } else {
            insert(present, fresh, row, end);
            row = end - 1;
        }
    }
}

void ProjectTreeModel::removeMissing(ProjectNode& present, const ProjectNode::Children& fresh) {
    ProjectNode::Children& nodes = present.children;
    const auto isMissing = [&](std::size_t row) { return !holds(fresh, nodes[row]->key); };
    const QModelIndex above = &present == &m_root ? QModelIndex() : indexOf(present);
    std::size_t end = nodes.size();
    while (end > 0) {
        std::size_t first = end;
        while (first > 0 && isMissing(first - 1)) {
            --first;
        }
        if (first == end) {
            --end;
            continue;
        }
        beginRemoveRows(above, static_cast<int>(first), static_cast<int>(end) - 1);
        const auto begin = nodes.begin();
        nodes.erase(begin + static_cast<std::ptrdiff_t>(first), begin + static_cast<std::ptrdiff_t>(end));
        endRemoveRows();
        end = first;
    }
}

void ProjectTreeModel::insert(ProjectNode& present, ProjectNode::Children& fresh, std::size_t first,
                              std::size_t end) {
    const auto from = static_cast<std::ptrdiff_t>(first);
    const auto to = static_cast<std::ptrdiff_t>(end);
    beginInsertRows(indexOf(present), static_cast<int>(first), static_cast<int>(end) - 1);
    std::for_each(fresh.begin() + from, fresh.begin() + to,
                  [&present](const auto& node) { node->parent = &present; });
    present.children.insert(present.children.begin() + from, std::make_move_iterator(fresh.begin() + from),
                            std::make_move_iterator(fresh.begin() + to));
    endInsertRows();
}

// NOLINTNEXTLINE(misc-no-recursion) as deep as the tree: three levels
void ProjectTreeModel::update(ProjectNode& present, ProjectNode& fresh) {
    if (!present.looksLike(fresh)) {
        present.name = fresh.name;
        present.created = fresh.created;
        present.pointCount = fresh.pointCount;
        emit dataChanged(indexOf(present), indexOf(present, ColumnCount - 1));
    }
    merge(present, std::move(fresh.children));
}

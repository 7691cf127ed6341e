#include "ProjectTreeModel.h"

#include "NameText.h"
#include "TDatabase.h"
#include "TLineIcon.h"
#include "VKError.h"
#include "VKObject2Analysis.h"
#include "VKObject2Decoder.h"
#include "VKObject2Well.h"

#include <QFont>
#include <QLocale>

#include <algorithm>

using Kind = ProjectNode::Kind;

namespace {

QVector<int> placeOf(QModelIndex index) {
    QVector<int> place;
    for (; index.isValid(); index = index.parent()) {
        place.prepend(index.row());
    }
    return place;
}

} // namespace

ProjectTreeModel::ProjectTreeModel(QObject* parent)
    : ProjectRowsModel(parent), m_datasetIcon(TLineIcon::icon(QStringLiteral("dataset"))),
      m_sampleIcon(TLineIcon::icon(QStringLiteral("sample"))),
      m_analysisIcon(TLineIcon::icon(QStringLiteral("analysis"))) {}

ProjectTreeModel::~ProjectTreeModel() = default;

QString ProjectTreeModel::shownName(const ProjectNode& node) {
    if (node.kind != Kind::Section) {
        return NameText::onOneLine(node.name);
    }
    return node.key == ProjectNode::datasets ? tr("Datasets", "Jeux de données") : tr("Analyses", "Analyses");
}

void ProjectTreeModel::retranslate() {
    emit headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
    if (rowCount() > 0) {
        emit dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
    }
}

QModelIndexList ProjectTreeModel::topToBottom(const QModelIndexList& rows) {
    QVector<QPair<QVector<int>, QModelIndex>> placed;
    for (const QModelIndex& index : rows) {
        placed.append({placeOf(index), index.sibling(index.row(), NameColumn)});
    }
    std::sort(placed.begin(), placed.end());
    placed.erase(std::unique(placed.begin(), placed.end()), placed.end());
    QModelIndexList sorted;
    for (const auto& one : placed) {
        sorted.append(one.second);
    }
    return sorted;
}

QList<const VKObject2*> ProjectTreeModel::objects(const QModelIndexList& rows) const {
    if (project() == nullptr) {
        return {};
    }
    QVector<qint64> keys;
    for (const QModelIndex& row : rows) {
        if (node(row).kind == Kind::Analysis) {
            keys.append(node(row).key);
        }
    }
    QList<const VKObject2*> objects;
    try {
        const QVector<const VKObject2Analysis*> analyses = project()->analysesByKeys(keys);
        auto analysis = analyses.begin();
        for (const QModelIndex& row : rows) {
            if (node(row).kind == Kind::Analysis) {
                objects.append(*analysis++);
            } else if (node(row).kind == Kind::Dataset) {
                objects.append(project()->wellByKey(node(row).key));
            }
        }
    } catch (const VKError& error) {
        VKError::dispatchError(error);
        return {};
    }
    objects.removeAll(nullptr);
    return objects;
}

QMimeData* ProjectTreeModel::mimeData(const QModelIndexList& indexes) const {
    const QList<const VKObject2*> dragged = objects(topToBottom(indexes));
    return dragged.isEmpty() ? nullptr : VKObject2Decoder::encode(dragged);
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

QString ProjectTreeModel::text(const ProjectNode& node, int column) {
    if (column == NameColumn) {
        return shownName(node);
    }
    if (column == DateColumn) {
        return node.created.isValid()
                   ? QLocale().toString(node.created.toLocalTime().date(), QLocale::ShortFormat)
                   : QString();
    }
    return node.kind == Kind::Analysis ? QLocale().toString(node.count) : QString();
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
    return name == shownName(renamed) || rename(index, name);
}

bool ProjectTreeModel::rename(const QModelIndex& index, const QString& name) {
    const ProjectNode& renamed = node(index);
    try {
        if (renamed.kind == Kind::Dataset) {
            project()->renameWell(renamed.key, name);
        } else {
            project()->renameAnalysis(renamed.key, name);
        }
        refresh({index});
        return true;
    } catch (const VKError& error) {
        VKError::dispatchError(error);
        return false;
    }
}

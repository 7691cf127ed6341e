#include "MessageLogModel.h"

#include "MessageText.h"

#include <QLocale>

#include <algorithm>

MessageLogModel::MessageLogModel(int capacity, QObject* parent)
    : QAbstractTableModel(parent), m_capacity(std::max(capacity, 1)) {}

MessageLogModel::~MessageLogModel() = default;

void MessageLogModel::log(MessageLevel level, const QString& message) {
    const MessageText text(message);
    if (rowCount() == m_capacity) {
        beginRemoveRows({}, 0, 0);
        m_entries.pop_front();
        endRemoveRows();
    }
    beginInsertRows({}, rowCount(), rowCount());
    m_entries.push_back({level, QDateTime::currentDateTime(), text.rich(), text.plain()});
    endInsertRows();
}

void MessageLogModel::clear() {
    beginResetModel();
    m_entries.clear();
    endResetModel();
}

int MessageLogModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_entries.size());
}

int MessageLogModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant MessageLogModel::data(const QModelIndex& index, int role) const {
    if (index.model() != this || index.row() >= rowCount()) {
        return {};
    }
    const Entry& entry = m_entries[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return shown(entry, index.column());
    case LevelRole:
        return static_cast<int>(entry.level);
    case TimeRole:
        return entry.time;
    case RichTextRole:
        return entry.rich;
    default:
        return {};
    }
}

QVariant MessageLogModel::shown(const Entry& entry, int column) {
    switch (column) {
    case LevelColumn:
        return levelName(entry.level);
    case TimeColumn:
        return QLocale().toString(entry.time.time(), QStringLiteral("HH:mm:ss"));
    default:
        return entry.plain;
    }
}

QVariant MessageLogModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    switch (section) {
    case LevelColumn:
        return tr("Level", "Niveau");
    case TimeColumn:
        return tr("Time", "Heure");
    case TextColumn:
        return tr("Message", "Message");
    default:
        return {};
    }
}

QString MessageLogModel::levelName(MessageLevel level) {
    switch (level) {
    case MessageLevel::Debug:
        return tr("Detail", "Détail");
    case MessageLevel::Information:
        return tr("Information", "Information");
    case MessageLevel::Warning:
        return tr("Warning", "Avertissement");
    case MessageLevel::Error:
        break;
    }
    return tr("Error", "Erreur");
}

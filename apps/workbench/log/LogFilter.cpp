#include "LogFilter.h"

#include "MessageLogModel.h"

namespace {

std::size_t placeOf(MessageLevel level) {
    return static_cast<std::size_t>(level);
}

} // namespace

LogFilter::LogFilter(QAbstractItemModel& messages, QObject* parent) : QSortFilterProxyModel(parent) {
    setSourceModel(&messages);
}

void LogFilter::setLevelShown(MessageLevel level, bool shown) {
    if (m_shown.at(placeOf(level)) != shown) {
        m_shown.at(placeOf(level)) = shown;
        invalidateFilter();
    }
}

void LogFilter::setText(const QString& text) {
    if (m_text != text.trimmed()) {
        m_text = text.trimmed();
        invalidateFilter();
    }
}

bool LogFilter::filterAcceptsRow(int row, const QModelIndex& parent) const {
    const QModelIndex index = sourceModel()->index(row, MessageLogModel::TextColumn, parent);
    const auto level = static_cast<std::size_t>(index.data(MessageLogModel::LevelRole).toInt());
    return m_shown.at(level) &&
           (m_text.isEmpty() || index.data().toString().contains(m_text, Qt::CaseInsensitive));
}

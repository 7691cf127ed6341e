#include "LogDelegate.h"

#include "LogText.h"
#include "MessageLogModel.h"
#include "TLineIcon.h"
#include "TavrelColors.h"

#include <QPainter>
#include <QStyle>

#include <algorithm>
#include <cmath>

namespace {

constexpr int iconExtent = 16;
constexpr int gap = 8;
constexpr int padding = 4; // above and below a text
constexpr int heightsKept = 2 * MessageLogModel::defaultCapacity;

int lineHeight(const QFontMetrics& metrics) {
    return std::max(metrics.height(), iconExtent);
}

int innerWidth(int columnWidth) {
    return std::max(columnWidth - 2 * gap, 1);
}

} // namespace

LogDelegate::LogDelegate(QObject* parent) : QStyledItemDelegate(parent) {
    for (std::size_t level = 0; level < m_icons.size(); ++level) {
        m_icons.at(level) = levelIcon(static_cast<int>(level));
    }
}

QIcon LogDelegate::levelIcon(int level) {
    switch (static_cast<MessageLevel>(level)) {
    case MessageLevel::Debug:
        return TLineIcon::icon(QStringLiteral("detail"));
    case MessageLevel::Information:
        return TLineIcon::icon(QStringLiteral("info"));
    case MessageLevel::Warning:
        return TLineIcon::icon(QStringLiteral("warning"));
    case MessageLevel::Error:
        break;
    }
    return TLineIcon::icon(QStringLiteral("error"));
}

int LogDelegate::levelWidth(const QFontMetrics& metrics) {
    int width = 0;
    for (const auto level :
         {MessageLevel::Debug, MessageLevel::Information, MessageLevel::Warning, MessageLevel::Error}) {
        width = std::max(width, metrics.horizontalAdvance(MessageLogModel::levelName(level)));
    }
    return gap + iconExtent + gap + width + gap;
}

int LogDelegate::timeWidth(const QFontMetrics& metrics) {
    return gap + metrics.horizontalAdvance(QStringLiteral("00:00:00")) + gap;
}

void LogDelegate::setTextWidth(int width) {
    if (width != m_textWidth) {
        m_textWidth = width;
        forgetHeights();
    }
}

QSize LogDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const int height = index.column() == MessageLogModel::TextColumn ? textHeight(option, index)
                                                                     : lineHeight(option.fontMetrics);
    return {m_textWidth, height + 2 * padding};
}

int LogDelegate::textHeight(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const QString rich = index.data(MessageLogModel::RichTextRole).toString();
    const auto known = m_heights.constFind(rich);
    if (known != m_heights.constEnd()) {
        return *known;
    }
    if (m_heights.size() >= heightsKept) {
        m_heights.clear();
    }
    QTextLayout layout;
    const qreal height = LogText(rich).layOut(layout, option.font, innerWidth(m_textWidth));
    const int rounded = std::max(static_cast<int>(std::ceil(height)), lineHeight(option.fontMetrics));
    m_heights.insert(rich, rounded);
    return rounded;
}

void LogDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const {
    painter->save();
    option.widget->style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &option, painter, option.widget);
    const QRect line(option.rect.left() + gap, option.rect.top() + padding, innerWidth(option.rect.width()),
                     lineHeight(option.fontMetrics));
    painter->setFont(option.font);
    painter->setPen(option.palette.color(QPalette::Text));
    switch (index.column()) {
    case MessageLogModel::LevelColumn:
        paintLevel(*painter, line, index);
        break;
    case MessageLogModel::TimeColumn:
        painter->setPen(TavrelColors::caption(option.palette));
        painter->drawText(line, Qt::AlignLeft | Qt::AlignVCenter, index.data().toString());
        break;
    default:
        paintText(*painter, option, index);
        break;
    }
    painter->restore();
}

void LogDelegate::paintLevel(QPainter& painter, const QRect& line, const QModelIndex& index) const {
    const auto level = static_cast<std::size_t>(index.data(MessageLogModel::LevelRole).toInt());
    const QRect icon(line.left(), line.top() + (line.height() - iconExtent) / 2, iconExtent, iconExtent);
    m_icons.at(level).paint(&painter, icon);
    painter.drawText(line.adjusted(iconExtent + gap, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                     index.data().toString());
}

void LogDelegate::paintText(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) {
    QTextLayout layout;
    LogText(index.data(MessageLogModel::RichTextRole).toString())
        .layOut(layout, option.font, innerWidth(option.rect.width()));
    const qreal firstLine = layout.lineCount() > 0 ? layout.lineAt(0).height() : 0;
    const qreal lift = std::max(0.0, (lineHeight(option.fontMetrics) - firstLine) / 2);
    layout.draw(&painter, option.rect.topLeft() + QPointF(gap, padding + lift));
}

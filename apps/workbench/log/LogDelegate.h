#pragma once

#include <QHash>
#include <QIcon>
#include <QStyledItemDelegate>

#include <array>

/// Draws a message: its level as an icon and a word, the time, and the text wrapped to its column. All begin
/// on the first line.
class LogDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    explicit LogDelegate(QObject* parent);

    /// What the level and the time need, in the language of the moment.
    static int levelWidth(const QFontMetrics& metrics);
    static int timeWidth(const QFontMetrics& metrics);

    /// The width that texts are wrapped to: that of their column.
    void setTextWidth(int width);
    /// The font or the language is another one.
    void forgetHeights() { m_heights.clear(); }

    static QIcon levelIcon(int level);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    int textHeight(const QStyleOptionViewItem& option, const QModelIndex& index) const;
    void paintLevel(QPainter& painter, const QRect& line, const QModelIndex& index) const;
    static void paintText(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index);

    std::array<QIcon, 4> m_icons;
    int m_textWidth = 0;
    mutable QHash<QString, int> m_heights; // of the texts laid out at that width
};
